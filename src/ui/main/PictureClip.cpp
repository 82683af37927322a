#include "ui/main/PictureClip.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace ui {

namespace {

constexpr int kPieceSize = 16;  // pixels, and the units in which a piece is drawn

void DrawArrow(QPainter& painter, QPointF from, QPointF to)
{
    constexpr qreal kHead = 3.0;
    const QPointF along = (to - from) / QLineF(from, to).length() * kHead;
    const QPointF across(-along.y(), along.x());
    painter.drawLine(from, to);
    painter.drawLine(to, to - along + across);
    painter.drawLine(to, to - along - across);
}

void DrawPiece(QPainter& painter, PictureClip::Piece piece)
{
    switch (piece) {
    case PictureClip::Load:  // an arrow out of a list
        painter.drawLines({QLineF(2, 4, 7, 4), QLineF(2, 8, 5, 8), QLineF(2, 12, 7, 12)});
        DrawArrow(painter, {7, 8}, {14, 8});
        break;
    case PictureClip::Remove:
        painter.drawLines({QLineF(3, 3, 13, 13), QLineF(13, 3, 3, 13)});
        break;
    case PictureClip::Save:  // an arrow onto a tray
        DrawArrow(painter, {8, 2}, {8, 10});
        painter.drawPolyline(QPolygonF({{2, 10}, {2, 14}, {14, 14}, {14, 10}}));
        break;
    case PictureClip::Map:  // rings and a cross
        painter.drawEllipse(QPointF(8, 8), 6, 6);
        painter.drawEllipse(QPointF(8, 8), 2.5, 2.5);
        painter.drawLines({QLineF(8, 2, 8, 14), QLineF(2, 8, 14, 8)});
        break;
    case PictureClip::Sort:
        painter.drawLines({QLineF(2, 4, 4, 4), QLineF(2, 8, 6, 8), QLineF(2, 12, 7, 12)});
        DrawArrow(painter, {11, 3}, {11, 13});
        break;
    case PictureClip::MoveOut:  // an arrow out of a box
        painter.drawPolyline(QPolygonF({{8, 3}, {2, 3}, {2, 13}, {8, 13}}));
        DrawArrow(painter, {6, 8}, {14, 8});
        break;
    case PictureClip::Close: painter.drawLine(3, 13, 13, 13); break;
    case PictureClip::Pieces: break;
    }
}

QPixmap NewPicture(const QColor& colour, qreal ratio)
{
    const QSize size(PictureClip::Pieces * kPieceSize, kPieceSize);
    QPixmap picture((QSizeF(size) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (int piece = 0; piece < PictureClip::Pieces; ++piece) {
        DrawPiece(painter, static_cast<PictureClip::Piece>(piece));
        painter.translate(kPieceSize, 0);
    }
    return picture;
}

}  // namespace

void PictureClip::Draw(const QPalette& palette, qreal ratio)
{
    picture_ = NewPicture(palette.color(QPalette::Active, QPalette::ButtonText), ratio);
    disabledPicture_ = NewPicture(palette.color(QPalette::Disabled, QPalette::ButtonText), ratio);
}

QIcon PictureClip::Icon(Piece piece) const
{
    const qreal ratio = picture_.devicePixelRatio();
    const QRectF clip(piece * kPieceSize * ratio, 0, kPieceSize * ratio, kPieceSize * ratio);
    QIcon icon(picture_.copy(clip.toAlignedRect()));
    icon.addPixmap(disabledPicture_.copy(clip.toAlignedRect()), QIcon::Disabled);
    return icon;
}

}  // namespace ui
