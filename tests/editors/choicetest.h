#pragma once

#include "editors/variableedit.h"
#include "tests/editors/editlog.h"
#include "tests/support/strictmain.h"

#include <QComboBox>

#include <memory>

/// What the editors with a list of choices share, checked with one of them: shown anew for each test
/// function, with three choices, the middle one current.
class ChoiceTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_edit.reset(); }

    void liesInOneRow();
    void showsKeyAndValue();
    void appendsChoicesBehindThoseThere();

    void tellsChoiceMadeByKeys();
    void tellsChoiceMadeByLetter();
    void tellsChoiceMadeInList();
    void writesDebugLineBeforeItTells();
    void tellsChoiceMadeByTheProgram();
    void tellsProgrammedChoiceUnderTheNewKey();
    void staysSilentWhenChoiceIsTheCurrentOne();

    void hasFocusInItsComboBox();
    void namesItsComboBoxByTheKey();

protected:
    /// A new editor without choices.
    virtual std::unique_ptr<VariableEdit> newEdit() const = 0;

    /// Appends choices to those of the editor.
    virtual void offer(VariableEdit &edit, const QStringList &choices) const = 0;

    VariableEdit &edit() const { return *m_edit; }
    QComboBox *comboBox() const { return m_edit->findChild<QComboBox *>(); }
    QStringList choices() const;

private:
    std::unique_ptr<VariableEdit> m_edit;
};
