// The files of a map: its picture, the adjustment file and the UI-View file beside it.

#pragma once

#include <optional>
#include <string>

#include "app/AppState.h"
#include "base/Bytes.h"
#include "map/CompanionNames.h"
#include "ui/map/MapImage.h"

class QString;
class QWidget;

namespace ui {

class UserDialogs;

class MapFiles {
public:
    MapFiles(app::AppState& state, MapImage& image, UserDialogs& dialogs, QWidget* window);

    // "Landkarte laden": asks for a picture and loads it with what its companions hold. False, with
    // everything as it was, when the user cancels or the picture cannot be loaded.
    bool Load();

    void SaveAdjustment();   // "Justage speichern"
    void SaveCalibration();  // "UI-View INF File erzeugen"

private:
    bool LoadPicture(const QString& file);
    void ReadCalibration();
    void ReadAdjustment();
    void RememberName(const QString& file);

    bool IsPicture(const std::string& name) const;

    // The companion to read or replace; none for a picture name without a dot.
    std::optional<std::string> Companion(map::Companion companion) const;

    // Companion for writing. None, and told, with fewer than three references or no dot, or when it
    // is a file that no companion may replace.
    std::optional<std::string> WritableCompanion(map::Companion companion);
    bool MayReplaceCompanion(const std::string& name, map::Companion companion);

    // Writes a companion. Old bytes that `known` does not take for one are set aside: they may be
    // something else, or worth mending.
    void WriteCompanion(const std::string& name, bool (*known)(base::ByteView),
                        base::ByteView bytes);

    void Tell(const QString& text);

    app::AppState& state_;
    MapImage& image_;
    UserDialogs& dialogs_;
    QWidget* window_;
};

}  // namespace ui
