#pragma once

#include <QTextDocument>

/// A document that never reaches outside: pictures that its HTML carries with it are shown, those that it
/// only names (on a server, in a file) are left out, and so are style sheets.
class TextDocument : public QTextDocument
{
    Q_OBJECT

public:
    using QTextDocument::QTextDocument;

protected:
    QVariant loadResource(int type, const QUrl &name) override;
};
