#include "viewers/customtexteditor.h"

#include "viewers/richtext.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>

#include <memory>

CustomTextEditor::CustomTextEditor(QWidget *parent) : QTextEdit(parent) {}

void CustomTextEditor::contextMenuEvent(QContextMenuEvent *event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
    // The see-through sheet of the area around the canvas reaches down to here.
    menu->setStyleSheet(qApp->styleSheet());
    menu->exec(event->globalPos());
}

void CustomTextEditor::insertFromMimeData(const QMimeData *source)
{
    const QString markup = source->hasHtml() ? source->html() : source->text().toHtmlEscaped();
    if (RichText::isShowable(markup))
        QTextEdit::insertFromMimeData(source);
    else
        insertPlainText(RichText::excerpt(source->hasText() ? source->text().toHtmlEscaped() : markup));
}
