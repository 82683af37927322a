#include "ui/map/MarkerPainter.h"

#include <algorithm>
#include <cmath>

#include <QImage>
#include <QPainter>

#include "base/CodePage.h"
#include "base/Rounding.h"

namespace ui {

namespace {

constexpr int kFontPixels = 11;

// From the anchor, in surface units; the plate's right edge is counted from the end of the text.
constexpr int kPlateLeft = -4;
constexpr int kPlateTop = -5;
constexpr int kPlateRight = 6;
constexpr int kPlateBottom = 7;
constexpr int kSquare = 2;
constexpr int kTextLeft = 4;
constexpr int kTextTop = -6;

// Ink outside its plate stays within this many units of it.
constexpr int kOverhang = 16;

QString Shown(std::string_view text)
{
    return QString::fromStdString(base::FromCodePage(text));
}

std::size_t Index(char character)
{
    return static_cast<unsigned char>(character);
}

// Control characters, the soft hyphen and the bytes without a character may be drawn in special
// ways.
bool IsPlain(std::size_t byte)
{
    constexpr std::array kUndefined = {0x81, 0x8D, 0x8F, 0x90, 0x9D, 0xA0, 0xAD};
    return byte >= 0x20 && byte != 0x7F
           && std::find(kUndefined.begin(), kUndefined.end(), static_cast<int>(byte))
                  == kUndefined.end();
}

// Whole units of a width in device pixels.
int WholeUnits(double devicePixels, qreal scale)
{
    return base::Saturate<int>(base::RoundHalfEven(devicePixels / scale));
}

}  // namespace

QFont LabelFont(qreal scale)
{
    QFont font;
    font.setPixelSize(base::Saturate<int>(base::RoundHalfEven(kFontPixels * scale)));
    // Each character is placed by its own width alone, whatever stands beside it.
    font.setKerning(false);
    font.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::PreferNoShaping | QFont::NoSubpixelAntialias));
    return font;
}

MarkerPainter::MarkerPainter(qreal scale, QColor plate, QColor ink)
    : scale_(scale), plate_(plate), ink_(ink), font_(LabelFont(scale)), metrics_(font_),
      characters_()
{
    QString all;
    double sum = 0.0;
    for (std::size_t byte = 0; byte < characters_.size(); ++byte) {
        if (!IsPlain(byte)) {
            continue;
        }
        const auto character = static_cast<char>(byte);
        const QString text = Shown({&character, 1});
        Character& known = characters_[byte];
        known.simple = true;
        known.advance = metrics_.horizontalAdvance(text);
        all += text;
        sum += known.advance;
    }
    // Should a font place its characters in some other way after all, every text is measured whole.
    if (metrics_.horizontalAdvance(all) != sum) {
        characters_.fill({});
    }
    FindOverhang();
}

int MarkerPainter::Device(int units) const
{
    if (scale_ == 1.0) {
        return units;
    }
    return base::Saturate<int>(base::RoundHalfEven(units * scale_));
}

bool MarkerPainter::AllSimple(std::string_view text) const
{
    return std::all_of(text.begin(), text.end(),
                       [this](char c) { return characters_[Index(c)].simple; });
}

int MarkerPainter::TextWidth(std::string_view text) const
{
    if (!AllSimple(text)) {
        return WholeUnits(metrics_.horizontalAdvance(Shown(text)), scale_);
    }
    double width = 0.0;
    for (const char c : text) {
        width += characters_[Index(c)].advance;
    }
    return WholeUnits(width, scale_);
}

plot::PixelBox MarkerPainter::Plate(plot::SurfacePoint at, int textWidth) const
{
    const int x = Device(at.x);
    const int y = Device(at.y);
    return {.left = x + Device(kPlateLeft),
            .top = y + Device(kPlateTop),
            .right = x + Device(textWidth + kPlateRight),
            .bottom = y + Device(kPlateBottom)};
}

// Draws each character alone and looks at what it leaves beside the plate.
void MarkerPainter::FindOverhang()
{
    const plot::SurfacePoint at{.x = kOverhang, .y = kOverhang};
    QImage cell(Device(3 * kOverhang), Device(2 * kOverhang), QImage::Format_RGB32);
    QPainter painter(&cell);
    painter.setFont(font_);
    painter.setPen(Qt::white);
    for (std::size_t byte = 0; byte < characters_.size(); ++byte) {
        Character& known = characters_[byte];
        if (!known.simple) {
            continue;
        }
        const auto character = static_cast<char>(byte);
        painter.fillRect(cell.rect(), Qt::black);
        painter.drawText(Device(at.x) + Device(kTextLeft),
                         Device(at.y) + Device(kTextTop + kLabelBaseline), Shown({&character, 1}));
        // The text's width is rounded to whole units: what reaches into the last unit of the plate
        // may be outside.
        const plot::PixelBox plate = Plate(at, static_cast<int>(known.advance / scale_));
        painter.fillRect(plate.left, plate.top, plate.right - plate.left - Device(1),
                         plate.bottom - plate.top, Qt::black);
        const auto* const first = reinterpret_cast<const QRgb*>(cell.constBits());
        const auto* const end = first + cell.sizeInBytes() / static_cast<qsizetype>(sizeof(QRgb));
        known.staysOnPlate = std::all_of(first, end, [](QRgb pixel) { return qRed(pixel) == 0; });
    }
}

bool MarkerPainter::StaysOnPlate(std::string_view text) const
{
    return std::all_of(text.begin(), text.end(),
                       [this](char c) { return characters_[Index(c)].staysOnPlate; });
}

plot::PixelBox MarkerPainter::Reach(const plot::PixelBox& plate) const
{
    const int margin = Device(kOverhang);
    return {.left = plate.left - margin,
            .top = plate.top - margin,
            .right = plate.right + margin,
            .bottom = plate.bottom + margin};
}

void MarkerPainter::DrawMarker(QPainter& painter, plot::SurfacePoint at,
                               std::string_view text) const
{
    const plot::PixelBox plate = Plate(at, TextWidth(text));
    painter.fillRect(plate.left, plate.top, plate.right - plate.left, plate.bottom - plate.top,
                     plate_);
    const int x = Device(at.x);
    const int y = Device(at.y);
    const int left = x + Device(-kSquare);
    const int top = y + Device(-kSquare);
    const int width = Device(kSquare + 1) - Device(-kSquare);
    const int line = std::max(1, Device(1));
    painter.fillRect(left, top, width, width, ink_);
    painter.fillRect(left + line, top + line, width - 2 * line, width - 2 * line, plate_);
    painter.setFont(font_);
    painter.setPen(ink_);
    painter.drawText(x + Device(kTextLeft), y + Device(kTextTop + kLabelBaseline), Shown(text));
}

}  // namespace ui
