// What stands in the map window below its menus: the drawing surface with its scroll bars, the two
// buttons and the properties list.

#pragma once

#include <QWidget>

#include "app/AppState.h"
#include "plot/MapView.h"
#include "ui/map/MapImage.h"
#include "ui/map/MapPainter.h"
#include "ui/map/MapSurface.h"

class QPushButton;
class QScrollBar;

namespace ui {

class PropertiesList;

class MapPane : public QWidget {
    Q_OBJECT

public:
    // `state`, `image`, `mainWindow` and `view` outlive the pane, which keeps the surface and the
    // clip of `view`.
    MapPane(app::AppState& state, const MapImage& image, const app::MainWindowPort& mainWindow,
            plot::MapView& view, QWidget* parent);

    void SetImageMode(bool on);
    void Layout();
    void Redraw() const { Picture1->Redraw(); }

    void ZoomIn();
    void ZoomOut();
    void Scroll(int dx, int dy) const;
    void ScrollTo(plot::SurfacePoint clipOrigin) const;

    void ShowProperties();

    QPushButton* Command1;
    QPushButton* Command2;
    PropertiesList* List1;
    QScrollBar* HScroll1;
    QScrollBar* VScroll1;
    MapSurface* Picture1;

    static constexpr int kScrollStep = 20;  // surface units

signals:
    void ClipMoved();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QPushButton* NewButton(const QString& name, const QString& caption, const QString& toolTip,
                           void (MapPane::*clicked)());
    QScrollBar* NewBar(Qt::Orientation orientation, const QString& name, const QString& spoken);
    void LayoutStrip(int left);
    void ShowClip();
    void Turn(QPoint eighths);

    app::AppState& state_;
    const MapImage& image_;
    plot::MapView& view_;
    MapPainter painter_;
    QPoint turned_;  // of the wheel, not yet acted upon
};

}  // namespace ui
