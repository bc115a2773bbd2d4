#include "tests/editors/editlog.h"

#include "editors/variableedit.h"

#include <utility>

namespace
{
EditLog *current = nullptr;
QtMessageHandler handlerBefore = nullptr;
} // namespace

EditLog::EditLog(VariableEdit *edit)
{
    connect(edit, &VariableEdit::getMax, this, [this](const QString &key) {
        note("getMax " + key);
        return maximum;
    });
    connect(edit, &VariableEdit::getMin, this, [this](const QString &key) {
        note("getMin " + key);
        return minimum;
    });
    connect(edit, &VariableEdit::valueEdited, this, [this](const QString &key, const QVariant &value) {
        note(QString("valueEdited %1 %2 %3").arg(key, value.typeName(), value.toString()));
    });
    current = this;
    handlerBefore = qInstallMessageHandler(noteDebug);
}

EditLog::~EditLog()
{
    qInstallMessageHandler(handlerBefore);
    current = nullptr;
}

QStringList EditLog::takeLines()
{
    return std::exchange(m_lines, {});
}

QStringList EditLog::takeEdits()
{
    return takeLines().filter("valueEdited ");
}

void EditLog::noteDebug(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtDebugMsg)
        current->note("debug: " + message);
    else
        handlerBefore(type, context, message);
}
