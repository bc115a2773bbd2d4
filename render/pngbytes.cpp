#include "render/pngbytes.h"

#include <png.h>

namespace
{
/// From here on the bytes get fewer far more slowly than the time gets longer.
constexpr int compression = 2;

void append(png_structp writer, png_bytep bytes, png_size_t count)
{
    static_cast<QByteArray *>(png_get_io_ptr(writer))
        ->append(reinterpret_cast<const char *>(bytes), static_cast<int>(count));
}

/// A pixel is one word: alpha, or nothing, in its highest byte and blue in its lowest.
void takePixels(png_structp writer, bool hasAlpha)
{
    constexpr bool isBlueFirst = Q_BYTE_ORDER == Q_LITTLE_ENDIAN;
    if (!hasAlpha)
        png_set_filler(writer, 0, isBlueFirst ? PNG_FILLER_AFTER : PNG_FILLER_BEFORE);
    if (isBlueFirst)
        png_set_bgr(writer);
    else if (hasAlpha)
        png_set_swap_alpha(writer);
}

void describe(png_structp writer, png_infop info, const QImage &picture)
{
    const bool hasAlpha = picture.hasAlphaChannel();
    png_set_filter(writer, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_compression_level(writer, compression);
    png_set_IHDR(writer, info, static_cast<png_uint_32>(picture.width()),
                 static_cast<png_uint_32>(picture.height()), 8,
                 hasAlpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(writer, info);
    takePixels(writer, hasAlpha);
}

/// False when the library gives up: it jumps back here then, past everything that it was called by.
bool write(png_structp writer, png_infop info, const QImage &picture)
{
    if (setjmp(png_jmpbuf(writer)))
        return false;
    describe(writer, info, picture);
    for (int y = 0; y < picture.height(); ++y)
        png_write_row(writer, picture.constScanLine(y));
    png_write_end(writer, info);
    return true;
}
} // namespace

QByteArray PngBytes::of(const QImage &picture)
{
    if (picture.isNull())
        return {};
    const QImage plain =
        picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    QByteArray bytes;
    png_structp writer = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = writer ? png_create_info_struct(writer) : nullptr;
    if (info) {
        png_set_write_fn(writer, &bytes, &append, nullptr);
        if (!write(writer, info, plain))
            bytes.clear();
    }
    png_destroy_write_struct(&writer, &info);
    return bytes;
}
