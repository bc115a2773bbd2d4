#include "tests/support/dialoganswers.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <algorithm>

namespace
{
constexpr int lookInterval = 10; // milliseconds
constexpr int maximumLooks = 2000;

QString plainText(const QAbstractButton *button)
{
    return button ? button->text().remove('&') : QString();
}

QList<QAbstractButton *> buttonsFromLeft(const QMessageBox *box)
{
    QList<QAbstractButton *> buttons = box->buttons();
    std::sort(buttons.begin(), buttons.end(), [](const QAbstractButton *one, const QAbstractButton *other) {
        return one->mapToGlobal({0, 0}).x() < other->mapToGlobal({0, 0}).x();
    });
    return buttons;
}

void noteBox(const QMessageBox *box, SeenDialog &seen)
{
    seen.text = box->text();
    seen.icon = box->icon();
    const QList<QAbstractButton *> buttons = buttonsFromLeft(box);
    for (const QAbstractButton *button : buttons)
        seen.buttons.append(plainText(button));
    seen.defaultButton = plainText(box->defaultButton());
}

void noteFileDialog(const QFileDialog *dialog, SeenDialog &seen)
{
    seen.nameFilters = dialog->nameFilters();
    seen.directory = dialog->directory().absolutePath();
    seen.acceptMode = dialog->acceptMode();
    seen.fileMode = dialog->fileMode();
}

SeenDialog noted(const QDialog *dialog)
{
    SeenDialog seen;
    seen.className = dialog->metaObject()->className();
    seen.title = dialog->windowTitle();
    if (const auto *box = qobject_cast<const QMessageBox *>(dialog))
        noteBox(box, seen);
    if (const auto *files = qobject_cast<const QFileDialog *>(dialog))
        noteFileDialog(files, seen);
    return seen;
}

bool clickButton(const QDialog *dialog, const QString &text)
{
    const QList<QAbstractButton *> buttons = dialog->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (plainText(button) != text || !button->isVisible() || !button->isEnabled())
            continue;
        QTest::mouseClick(button, Qt::LeftButton);
        return true;
    }
    return false;
}

bool chooseFile(QDialog *dialog, const QString &path)
{
    const auto *files = qobject_cast<QFileDialog *>(dialog);
    auto *edit = files ? files->findChild<QLineEdit *>("fileNameEdit") : nullptr;
    if (!edit)
        return false;
    edit->setText(path);
    return clickButton(dialog, files->acceptMode() == QFileDialog::AcceptOpen ? "Open" : "Save");
}
} // namespace

DialogAnswers::DialogAnswers()
{
    // Queued, since no timer fires while its own slot runs, and an answer may bring up the next dialog.
    connect(&m_timer, &QTimer::timeout, this, &DialogAnswers::look, Qt::QueuedConnection);
    m_timer.start(lookInterval);
}

DialogAnswers::~DialogAnswers()
{
    if (!m_answers.isEmpty())
        QTest::qFail("a dialog that was to be answered has not come", __FILE__, __LINE__);
}

DialogAnswers &DialogAnswers::press(const QString &button)
{
    return act([button](const QDialog *dialog) { return clickButton(dialog, button); });
}

DialogAnswers &DialogAnswers::choose(const QString &path)
{
    return act([path](QDialog *dialog) { return chooseFile(dialog, path); });
}

DialogAnswers &DialogAnswers::escape()
{
    return act([](QDialog *dialog) {
        QTest::keyClick(dialog, Qt::Key_Escape);
        return true;
    });
}

DialogAnswers &DialogAnswers::act(const std::function<bool(QDialog *)> &answer)
{
    m_answers.enqueue(answer);
    return *this;
}

void DialogAnswers::look()
{
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible())
        return;
    if (++m_looksAtOne > maximumLooks)
        sendAway(dialog, "a dialog does not take its answer");
    else if (dialog != m_answered)
        answer(dialog);
}

void DialogAnswers::answer(QDialog *dialog)
{
    if (m_answers.isEmpty()) {
        sendAway(dialog, "an unexpected dialog");
        return;
    }
    const SeenDialog seen = noted(dialog);
    // The answer may end the dialog, or bring up another one before it returns.
    const std::function<bool(QDialog *)> give = m_answers.dequeue();
    const QPointer<QDialog> before = m_answered;
    const int place = m_seen.size();
    m_answered = dialog;
    m_seen.append(seen);
    if (give(dialog)) {
        m_looksAtOne = 0;
        return;
    }
    m_seen.removeAt(place);
    m_answered = before;
    m_answers.prepend(give);
}

void DialogAnswers::sendAway(QDialog *dialog, const char *reason)
{
    ++m_failures;
    m_looksAtOne = 0;
    m_answered = dialog;
    m_answers.clear();
    const QString message = QString("%1: \"%2\"").arg(reason, dialog->windowTitle());
    QTest::qFail(qPrintable(message), __FILE__, __LINE__);
    dialog->done(QDialog::Rejected);
}
