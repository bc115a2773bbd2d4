#pragma once

#include <QObject>
#include <QStringList>
#include <QVariant>

class VariableEdit;

/// Notes in one list what an editor asks, tells and writes to the debug output, in the order of events, and
/// answers its questions. One at a time.
class EditLog : public QObject
{
public:
    explicit EditLog(VariableEdit *edit);
    ~EditLog() override;

    /// The lines since the last call: "debug: <text>", "getMax <key>", "getMin <key>" and
    /// "valueEdited <key> <type> <value>".
    QStringList takeLines();

    /// The same without debug lines and questions.
    QStringList takeEdits();

    QVariant minimum; ///< the answers; invalid ones mean no limit
    QVariant maximum;

private:
    void note(const QString &line) { m_lines.append(line); }
    static void noteDebug(QtMsgType type, const QMessageLogContext &context, const QString &message);

    QStringList m_lines;
};
