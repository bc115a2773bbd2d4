#include "pictures/formatbounds.h"

#include <QFont>
#include <QTextTableFormat>
#include <QtMath>

namespace
{
constexpr qreal pixelsPerPoint = 96 / 72.0;
constexpr qreal indentWidth = 40;   // pixels for each step
constexpr qreal largestShare = 200; // percent; tables in one another multiply theirs
constexpr qreal roomOfLetters = 2;  // a line is hardly ever higher than this, in font sizes

qreal held(qreal number, qreal limit)
{
    return qIsNaN(number) ? 0 : qBound(-limit, number, limit);
}

QTextLength held(const QTextLength &length, qreal limit)
{
    const bool isShare = length.type() == QTextLength::PercentageLength;
    return QTextLength(length.type(), held(length.rawValue(), isShare ? qMin(limit, largestShare) : limit));
}

QVariant held(const QVariantList &lengths, qreal limit)
{
    QVariantList result;
    for (const QVariant &length : lengths)
        result.append(length.canConvert<QTextLength>() ? QVariant(held(length.value<QTextLength>(), limit))
                                                       : length);
    return result;
}

/// The limit in the unit of the property, 0 for whole numbers that are no lengths.
qreal limitOf(int property, qreal limit)
{
    switch (property) {
    case QTextFormat::FontPointSize:
        return limit / pixelsPerPoint;
    case QTextFormat::BlockIndent:
    case QTextFormat::ListIndent:
        return qFloor(limit / indentWidth);
    default:
        return limit;
    }
}

bool isWholeLength(int property)
{
    return property == QTextFormat::FontPixelSize || property == QTextFormat::BlockIndent ||
           property == QTextFormat::ListIndent;
}

QVariant held(int property, const QVariant &value, qreal limit)
{
    const qreal bound = limitOf(property, limit);
    if (value.userType() == QMetaType::Double || value.userType() == QMetaType::Float)
        return held(value.toReal(), bound);
    if (value.userType() == QMetaType::Int && isWholeLength(property))
        return qBound(-int(bound), value.toInt(), int(bound));
    if (value.userType() == qMetaTypeId<QTextLength>())
        return held(value.value<QTextLength>(), bound);
    if (property == QTextFormat::TableColumnWidthConstraints)
        return held(value.toList(), bound);
    return value;
}

qreal fontSize(const QTextCharFormat &format)
{
    const QFont font = format.font();
    return font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * pixelsPerPoint;
}

qreal spacing(const QTextCharFormat &format, qreal size)
{
    const bool isShare = format.fontLetterSpacingType() == QFont::PercentageSpacing;
    const qreal letters = qAbs(format.fontLetterSpacing());
    return (isShare ? letters / 100 * size : letters) + qAbs(format.fontWordSpacing());
}

qreal lineHeight(const QTextBlockFormat &format, qreal line)
{
    const qreal height = qAbs(format.lineHeight());
    switch (format.lineHeightType()) {
    case QTextBlockFormat::ProportionalHeight:
        return line * qMax(1.0, height / 100);
    case QTextBlockFormat::SingleHeight:
        return line;
    default:
        return line + height;
    }
}

qreal fixed(const QTextLength &length)
{
    return length.type() == QTextLength::FixedLength ? qAbs(length.rawValue()) : 0;
}

qreal sum(const QTextFormat &format, std::initializer_list<int> properties)
{
    qreal result = 0;
    for (const int property : properties)
        result += qAbs(format.doubleProperty(property));
    return result;
}

qreal ofTable(const QTextTableFormat &format, int cells)
{
    qreal columns = 0;
    const QVector<QTextLength> widths = format.columnWidthConstraints();
    for (const QTextLength &width : widths)
        columns += fixed(width);
    return columns +
           cells * (qAbs(format.cellSpacing()) + 2 * qAbs(format.cellPadding()) + 2 * qAbs(format.border()));
}
} // namespace

bool FormatBounds::hold(QTextFormat &format, qreal limit)
{
    bool isChanged = false;
    const QMap<int, QVariant> properties = format.properties();
    for (auto it = properties.begin(); it != properties.end(); ++it) {
        const QVariant value = held(it.key(), it.value(), limit);
        if (value == it.value())
            continue;
        isChanged = true;
        format.setProperty(it.key(), value);
    }
    return isChanged;
}

QSizeF FormatBounds::pictureSize(const QTextImageFormat &format, QSize ownSize)
{
    QSizeF size(format.width(), format.height());
    const qreal ratio = ownSize.width() > 0 ? qreal(ownSize.height()) / ownSize.width() : 0;
    if (size.width() <= 0 && size.height() <= 0)
        return ownSize;
    if (size.width() <= 0)
        size.setWidth(ratio > 0 ? size.height() / ratio : 0);
    else if (size.height() <= 0)
        size.setHeight(size.width() * ratio);
    return size;
}

bool FormatBounds::holdPicture(QTextImageFormat &format, QSizeF size, qreal limit)
{
    if (size.width() <= limit && size.height() <= limit)
        return false;
    format.setWidth(qBound(1.0, size.width(), limit));
    format.setHeight(qBound(1.0, size.height(), limit));
    return true;
}

qreal FormatBounds::ofCharacter(const QTextCharFormat &character, const QTextBlockFormat &paragraph,
                                qreal picture)
{
    const qreal size = fontSize(character);
    return lineHeight(paragraph, qMax(roomOfLetters * size, picture)) + spacing(character, size);
}

qreal FormatBounds::ofParagraph(const QTextBlockFormat &format)
{
    return sum(format, {QTextFormat::BlockTopMargin, QTextFormat::BlockBottomMargin});
}

qreal FormatBounds::ofFrame(const QTextFrameFormat &format, int cells)
{
    const qreal sides = sum(format, {QTextFormat::FrameTopMargin, QTextFormat::FrameBottomMargin,
                                     QTextFormat::FrameLeftMargin, QTextFormat::FrameRightMargin}) +
                        2 * sum(format, {QTextFormat::FrameBorder, QTextFormat::FramePadding});
    const qreal room = sides + qMax(fixed(format.width()), fixed(format.height()));
    return format.isTableFormat() ? room + ofTable(format.toTableFormat(), cells) : room;
}

qreal FormatBounds::ofCell(const QTextFormat &format)
{
    return sum(format, {QTextFormat::TableCellTopPadding, QTextFormat::TableCellBottomPadding,
                        QTextFormat::TableCellLeftPadding, QTextFormat::TableCellRightPadding,
                        QTextFormat::TableCellTopBorder, QTextFormat::TableCellBottomBorder,
                        QTextFormat::TableCellLeftBorder, QTextFormat::TableCellRightBorder});
}
