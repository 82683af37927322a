// One picture cut into pieces: the pictures of the buttons.

#pragma once

#include <QIcon>
#include <QObject>
#include <QPixmap>

class QPalette;

namespace ui {

class PictureClip : public QObject {
    Q_OBJECT

public:
    enum Piece { Load, Remove, Save, Map, Sort, MoveOut, Close, Pieces };

    using QObject::QObject;

    // Draws the picture anew in the colours of the palette, so that it reads on light and on dark,
    // with `ratio` device pixels for each pixel.
    void Draw(const QPalette& palette, qreal ratio = 1.0);

    QIcon Icon(Piece piece) const;

private:
    QPixmap picture_;          // the pieces side by side
    QPixmap disabledPicture_;  // the same for buttons that are switched off
};

}  // namespace ui
