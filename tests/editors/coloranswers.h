#pragma once

#include "tests/support/dialoganswers.h"

#include <QColorDialog>
#include <QLineEdit>
#include <QTest>

/// The line of a colour dialog that takes the digits of a colour; none in other dialogs.
inline QLineEdit *digitsLine(const QDialog *dialog)
{
    const auto *colors = qobject_cast<const QColorDialog *>(dialog);
    const QList<QLineEdit *> lines = colors ? colors->findChildren<QLineEdit *>() : QList<QLineEdit *>();
    for (QLineEdit *line : lines) {
        if (line->text().startsWith('#'))
            return line;
    }
    return nullptr;
}

/// Types the digits of a colour (#rrggbb) into a colour dialog and presses Return.
inline void typeColor(DialogAnswers &answers, const QString &digits)
{
    answers.act([digits](const QDialog *dialog) {
        QLineEdit *line = digitsLine(dialog);
        if (!line)
            return false;
        line->selectAll();
        QTest::keyClicks(line, digits);
        QTest::keyClick(line, Qt::Key_Return);
        return true;
    });
}

/// Tells which colour a colour dialog starts with, then sends it away with Escape.
inline void lookAtColor(DialogAnswers &answers, QColor &color)
{
    answers.act([&color](QDialog *dialog) {
        const auto *colors = qobject_cast<QColorDialog *>(dialog);
        if (!colors)
            return false;
        color = colors->currentColor();
        QTest::keyClick(dialog, Qt::Key_Escape);
        return true;
    });
}
