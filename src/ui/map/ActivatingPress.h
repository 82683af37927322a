// Which press on the surface activated the window.
//
// Window systems tell the activation first and hand the press on a moment later, or the other way
// round; neither event says that it belongs to the other. Nobody sees a new picture and aims at it
// within that moment, so a press in it was aimed at what was shown before.

#pragma once

#include <cstddef>
#include <optional>

#include <QElapsedTimer>

#include "plot/PlotPosition.h"

namespace ui {

class ActivatingPress {
public:
    // The window was activated; until then the clip stood at `clip`.
    void Activated(plot::SurfacePoint clip)
    {
        clip_ = clip;
        activated_.start();
    }

    // The surface was pressed in the active window. If that activated it, the clip that was shown
    // then; asked once.
    std::optional<plot::SurfacePoint> ClipPressed()
    {
        const bool belongs = clip_ && !activated_.hasExpired(kMoment);
        const std::optional<plot::SurfacePoint> clip = belongs ? clip_ : std::nullopt;
        clip_.reset();
        return clip;
    }

    // The clip was moved, or a command chosen: a press from now on is aimed at what is shown.
    void ForgetClip() { clip_.reset(); }

    // The surface was pressed before the window was activated; the route had so many points.
    void PressedInactive(std::size_t routePoints)
    {
        routePoints_ = routePoints;
        pressed_.start();
    }

    // When such a press activates the window now, how many points the route had before it; asked
    // once.
    std::optional<std::size_t> PointsBeforePress()
    {
        const bool belongs = routePoints_ && !pressed_.hasExpired(kMoment);
        const std::optional<std::size_t> points = belongs ? routePoints_ : std::nullopt;
        routePoints_.reset();
        return points;
    }

    static constexpr qint64 kMoment = 200;  // ms

private:
    std::optional<plot::SurfacePoint> clip_;
    QElapsedTimer activated_;
    std::optional<std::size_t> routePoints_;
    QElapsedTimer pressed_;
};

}  // namespace ui
