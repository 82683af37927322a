#include "ui/map/MarkerLayer.h"

#include <algorithm>
#include <cstring>

#include <QPainter>

namespace ui {

namespace {

// Pictures that the frame does not use are dropped beyond this (64 MB).
constexpr std::size_t kMostKeptPixels = std::size_t{16} << 20U;

}  // namespace

void MarkerLayer::Restart()
{
    labels_.Clear();
    pictures_.clear();
    keptPixels_ = 0;
}

void MarkerLayer::Prepare(const MarkerPainter& painter)
{
    if (painter_ != painter) {
        painter_ = painter;
        pictures_.clear();
        keptPixels_ = 0;
    }
    pictures_.resize(labels_.Size());
}

MarkerLayer::Picture& MarkerLayer::Measured(plot::LabelId label)
{
    Picture& picture = pictures_[label];
    if (picture.textWidth < 0) {
        picture.textWidth = painter_->TextWidth(labels_.Text(label));
        picture.staysOnPlate = painter_->StaysOnPlate(labels_.Text(label));
    }
    return picture;
}

void MarkerLayer::FindVisible(plot::SurfaceSize picture, std::span<const Marker> markers)
{
    mask_.Reset(picture);
    visible_.clear();
    for (std::size_t i = markers.size(); i-- > 0;) {
        const Marker& marker = markers[i];
        Picture& label = Measured(marker.label);
        const plot::PixelBox plate = painter_->Plate(marker.at, label.textWidth);
        const plot::PixelBox part =
            mask_.FreePart(label.staysOnPlate ? plate : painter_->Reach(plate));
        if (!part.Empty()) {
            mask_.Cover(plate);
            label.inUse = true;
            visible_.push_back({.index = static_cast<std::uint32_t>(i), .part = part});
        }
    }
}

void MarkerLayer::PaintMissing(std::span<const Marker> markers)
{
    if (keptPixels_ > kMostKeptPixels) {
        for (Picture& picture : pictures_) {
            if (!picture.inUse) {
                keptPixels_ -= picture.pixels.size();
                picture.pixels = {};
            }
        }
    }
    QImage sheet;
    QPainter painter;
    for (const auto& [index, part] : visible_) {
        const plot::LabelId label = markers[index].label;
        Picture& picture = pictures_[label];
        if (!picture.staysOnPlate || !picture.pixels.empty()) {
            continue;
        }
        const plot::PixelBox plate = painter_->Plate({}, picture.textWidth);
        const QSize size(plate.right - plate.left, plate.bottom - plate.top);
        if (size.width() > sheet.width() || size.height() > sheet.height()) {
            if (painter.isActive()) {
                painter.end();
            }
            sheet = QImage(size.width() + size.width() / 2, size.height(), QImage::Format_RGB32);
            painter.begin(&sheet);
            painter.translate(-plate.left, -plate.top);
        }
        painter_->DrawMarker(painter, {}, labels_.Text(label));
        picture.pixels.resize(static_cast<std::size_t>(size.width())
                              * static_cast<std::size_t>(size.height()));
        QRgb* to = picture.pixels.data();
        for (int row = 0; row < size.height(); ++row, to += size.width()) {
            const auto* const from = reinterpret_cast<const QRgb*>(sheet.constScanLine(row));
            std::copy_n(from, size.width(), to);
        }
        keptPixels_ += picture.pixels.size();
    }
}

void MarkerLayer::Copy(const Target& target, const Marker& marker, const plot::PixelBox& part) const
{
    const Picture& label = pictures_[marker.label];
    const plot::PixelBox plate = painter_->Plate(marker.at, label.textWidth);
    const auto width = static_cast<std::ptrdiff_t>(plate.right - plate.left);
    const auto bytes = static_cast<std::size_t>(part.right - part.left) * sizeof(QRgb);
    const QRgb* from =
        label.pixels.data() + (part.top - plate.top) * width + (part.left - plate.left);
    QRgb* to = target.pixels + part.top * target.pixelsPerRow + part.left;
    for (int row = part.top; row < part.bottom; ++row) {
        std::memcpy(to, from, bytes);
        from += width;
        to += target.pixelsPerRow;
    }
}

void MarkerLayer::Paint(QImage& picture, std::span<const Marker> markers,
                        const MarkerPainter& painter)
{
    Prepare(painter);
    FindVisible({.width = picture.width(), .height = picture.height()}, markers);
    PaintMissing(markers);
    const Target target = {
        .pixels = reinterpret_cast<QRgb*>(picture.bits()),
        .pixelsPerRow = picture.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb)),
    };
    QPainter direct;
    for (std::size_t i = visible_.size(); i-- > 0;) {
        const Marker& marker = markers[visible_[i].index];
        Picture& label = pictures_[marker.label];
        label.inUse = false;
        if (label.staysOnPlate) {
            Copy(target, marker, visible_[i].part);
        } else {
            direct.begin(&picture);
            painter_->DrawMarker(direct, marker.at, labels_.Text(marker.label));
            direct.end();
        }
    }
}

}  // namespace ui
