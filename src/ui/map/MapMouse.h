// What a press and a click on the map do.

#pragma once

#include <cstdint>

#include "app/AppState.h"
#include "app/MainWindowPort.h"
#include "plot/MapView.h"
#include "ui/map/MapImage.h"

class QString;
class QWidget;

namespace ui {

class UserDialogs;

class MapMouse {
public:
    MapMouse(app::AppState& state, const MapImage& image, app::MainWindowPort& mainWindow,
             UserDialogs& dialogs, QWidget* window);

    // Map view: captures the image pixel at a point of the surface, and its position. The result is
    // the window's caption: latitude and longitude in degrees and minutes.
    QString Press(plot::SurfacePoint point, plot::SurfacePoint clipOrigin);

    // Map view: does what the click mode says with the pixel captured last. True when the window
    // has something to show.
    bool Click(plot::MapView& view);

private:
    // The position of the captured pixel, as exact as the switch allows; sets the deviation.
    geo::GeoPosition Convert(double tolerance, bool refined);

    // What a click stores: never a position that is not finite, but 0/0 in its place.
    geo::GeoPosition ClickedPosition();

    stations::StationTexts TextsOf(const std::string& callsign) const;
    void SetStation(int station);
    bool AddLandmark();
    bool AddReference(plot::MapView& view);  // adds Station 2; a grid through the old ones goes

    app::AppState& state_;
    const MapImage& image_;
    app::MainWindowPort& mainWindow_;
    UserDialogs& dialogs_;
    QWidget* window_;

    // The mouse pixel, of the whole image.
    std::int32_t x_ = 0;
    std::int32_t y_ = 0;
    double deviation_ = 0.0;  // of the last converted point, in pixels
    std::int32_t landmarks_ = 0;
};

}  // namespace ui
