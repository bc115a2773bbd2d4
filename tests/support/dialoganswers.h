#pragma once

#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QQueue>
#include <QStringList>
#include <QTimer>

#include <functional>

/// What a modal dialog showed to the user at the moment when it was answered.
struct SeenDialog {
    QString className;
    QString title;
    QString text; ///< the text of a message box
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QStringList buttons; ///< the buttons of a message box from left to right, without mnemonics
    QString defaultButton;
    QStringList nameFilters; ///< of a file dialog, and so are the following
    QString directory;
    QFileDialog::AcceptMode acceptMode = QFileDialog::AcceptOpen;
    QFileDialog::FileMode fileMode = QFileDialog::AnyFile;
};

/// Answers the modal dialogs that open while it lives, in the order in which the answers were given to it.
/// A dialog that nobody has an answer for, or whose answer does not end it in time, is sent away as a
/// failure.
class DialogAnswers : public QObject
{
public:
    DialogAnswers();
    ~DialogAnswers() override;

    /// Clicks the button of this text, written without mnemonic.
    DialogAnswers &press(const QString &button);

    /// Types the path into a file dialog and clicks its accepting button.
    DialogAnswers &choose(const QString &path);

    /// Presses Escape.
    DialogAnswers &escape();

    /// Does whatever the test wants. Called again and again until it answers true.
    DialogAnswers &act(const std::function<bool(QDialog *)> &answer);

    /// True when every answer was given, and no dialog came beyond those.
    bool areUsedUp() const { return m_answers.isEmpty() && m_failures == 0; }

    /// The dialogs so far, in the order of their answers.
    const QList<SeenDialog> &seen() const { return m_seen; }

private:
    void look();
    void answer(QDialog *dialog);
    void sendAway(QDialog *dialog, const char *reason);

    QQueue<std::function<bool(QDialog *)>> m_answers;
    QList<SeenDialog> m_seen;
    QPointer<QDialog> m_answered;
    QTimer m_timer;
    int m_looksAtOne = 0;
    int m_failures = 0;
};
