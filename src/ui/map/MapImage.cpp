#include "ui/map/MapImage.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <QFile>
#include <QImageReader>
#include <QPainter>

#include "base/FileBytes.h"
#include "map/PictureFile.h"
#include "ui/FileNameText.h"

namespace ui {

namespace {

using namespace Qt::StringLiterals;

// What decoding needs beside the picture.
constexpr std::uint64_t kReserve = std::uint64_t{64} << 20U;

bool CanBeClipped(QImage::Format format)
{
    constexpr QImage::Format kForms[] = {QImage::Format_RGB32, QImage::Format_Grayscale8,
                                         QImage::Format_Indexed8, QImage::Format_Mono,
                                         QImage::Format_MonoLSB};
    return std::ranges::find(kForms, format) != std::end(kForms);
}

std::uint64_t BytesNeeded(const QImageReader& reader)
{
    const QSize size = reader.size();
    constexpr int kClipDepth = 32;
    const int depth = QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel();
    // A form that cannot be clipped is held twice while it is converted.
    const int bits =
        (depth > 0 ? depth : kClipDepth) + (CanBeClipped(reader.imageFormat()) ? 0 : kClipDepth);
    return static_cast<std::uint64_t>(size.width()) * static_cast<std::uint64_t>(size.height())
               * static_cast<std::uint64_t>(bits) / 8
           + kReserve;
}

}  // namespace

std::uint64_t FreeMemory()
{
    QFile file(u"/proc/meminfo"_s);
    constexpr auto kUnknown = std::numeric_limits<std::uint64_t>::max();
    if (!file.open(QIODevice::ReadOnly)) {
        return kUnknown;
    }
    for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine()) {
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words.size() >= 2 && words[0] == QByteArrayLiteral("MemAvailable:")) {
            return words[1].toULongLong() * 1024;
        }
    }
    return kUnknown;
}

QString PictureFilter()
{
    const QString usual = u"Bilder (*.jpg;*.gif)|*.jpg;*.jpeg;*.gif|alle Dateien (*.*)|*.*"_s;
    const QString portable = u"|PNG-Bilder (*.png)|*.png"_s;
    QStringList others;
    for (const QByteArray& format : QImageReader::supportedImageFormats()) {
        const QString pattern = u"*."_s + QString::fromLatin1(format);
        if (!QStringList{u"*.jpg"_s, u"*.jpeg"_s, u"*.gif"_s, u"*.png"_s}.contains(pattern)) {
            others << pattern;
        }
    }
    return usual + portable
           + (others.isEmpty() ? QString() : u"|weitere Bilder|"_s + others.join(u';'));
}

PictureStatus MapImage::Load(const QString& file, std::uint64_t freeMemory)
{
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    // The library's own limit is far below a scanned map; the free memory is the limit here.
    QImageReader::setAllocationLimit(0);
    const bool canRead = reader.canRead();  // some say no once they were asked for the size
    const QSize size = reader.size();
    if (!canRead || size.isEmpty()) {
        return PictureStatus::Unreadable;
    }
    if (!map::CanBeGeoreferenced({.width = size.width(), .height = size.height()})) {
        return PictureStatus::TooLarge;
    }
    if (BytesNeeded(reader) > freeMemory) {
        return PictureStatus::NoMemory;
    }
    // Some decoders fill up what is missing and say nothing.
    base::InputFile bytes(Native(file));
    if (!map::IsWholePicture(bytes)) {
        return PictureStatus::Unreadable;
    }
    QImage picture = reader.read();
    if (picture.isNull() || picture.size() != size) {
        return PictureStatus::Unreadable;
    }
    return Set(std::move(picture)) ? PictureStatus::Loaded : PictureStatus::NoMemory;
}

bool MapImage::Set(QImage picture)
{
    if (picture.hasAlphaChannel()) {
        QImage opaque(picture.size(), QImage::Format_RGB32);
        if (opaque.isNull()) {
            return false;
        }
        opaque.fill(Qt::white);
        QPainter(&opaque).drawImage(0, 0, picture);
        picture = std::move(opaque);
    } else if (!CanBeClipped(picture.format())) {
        picture.convertTo(QImage::Format_RGB32);
    }
    if (picture.isNull()) {
        return false;
    }
    picture.setDevicePixelRatio(1.0);
    picture_ = std::move(picture);
    return true;
}

QImage MapImage::Clip(const QRect& area) const
{
    if (picture_.format() == QImage::Format_RGB32 && picture_.rect().contains(area)) {
        const uchar* const first =
            picture_.constScanLine(area.top()) + static_cast<std::ptrdiff_t>(area.left()) * 4;
        return {first, area.width(), area.height(), picture_.bytesPerLine(), picture_.format()};
    }
    QImage clip(area.size(), QImage::Format_RGB32);
    clip.fill(Qt::white);
    const QRect inside = area & picture_.rect();
    if (!inside.isEmpty()) {
        QPainter(&clip).drawImage(inside.topLeft() - area.topLeft(), picture_.copy(inside));
    }
    return clip;
}

}  // namespace ui
