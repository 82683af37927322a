#include "ui/map/MapFiles.h"

#include <vector>

#include <QDir>
#include <QFileInfo>

#include "base/FileBytes.h"
#include "base/FileNames.h"
#include "base/OldBytes.h"
#include "map/AdjustmentFile.h"
#include "map/CalibrationFile.h"
#include "ui/DatabaseActions.h"
#include "ui/FileNameText.h"
#include "ui/UserDialogs.h"

namespace ui {

namespace {

using namespace Qt::StringLiterals;

std::vector<std::string> FilesBeside(const std::string& name)
{
    std::vector<std::string> files;
    const QDir folder = QFileInfo(Shown(name)).dir();
    for (const QString& file : folder.entryList(QDir::Files | QDir::Hidden | QDir::System)) {
        files.push_back(Native(file));
    }
    return files;
}

std::string_view Text(base::ByteView bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

QString SizeText(map::ImageSize size)
{
    return QString::number(size.width) + u" x "_s + QString::number(size.height);
}

}  // namespace

MapFiles::MapFiles(app::AppState& state, MapImage& image, UserDialogs& dialogs, QWidget* window)
    : state_(state), image_(image), dialogs_(dialogs), window_(window)
{
}

void MapFiles::Tell(const QString& text)
{
    dialogs_.Inform(window_, {}, text);
}

bool MapFiles::IsPicture(const std::string& name) const
{
    return base::SameFile(name, state_.map.imageName);
}

std::optional<std::string> MapFiles::Companion(map::Companion companion) const
{
    const std::string& name = state_.map.imageName;
    return map::CompanionName(name, companion, FilesBeside(name));
}

bool MapFiles::Load()
{
    const QString file =
        dialogs_.OpenFile(window_, {.title = u"Landkarte laden"_s,
                                    .filter = PictureFilter(),
                                    .folder = Shown(state_.configuration.lastMapFolder)});
    if (file.isEmpty() || !LoadPicture(file)) {
        return false;
    }
    RememberName(file);
    state_.map.references.Reset();
    ReadCalibration();
    ReadAdjustment();
    return true;
}

bool MapFiles::LoadPicture(const QString& file)
{
    switch (image_.Load(file)) {
    case PictureStatus::Loaded: return true;
    case PictureStatus::Unreadable:
        Tell(u"Das Bild "_s + file + u" lässt sich nicht lesen!"_s);
        break;
    case PictureStatus::TooLarge:
        Tell(u"Das Bild "_s + file + u" ist zu groß: mehr als "_s
             + QString::number(map::kLongestEdge) + u" Pixel breit oder hoch!"_s);
        break;
    case PictureStatus::NoMemory:
        Tell(u"Für das Bild "_s + file + u" reicht der freie Speicher nicht!"_s);
        break;
    }
    return false;
}

void MapFiles::RememberName(const QString& file)
{
    const std::string name = Native(file);
    state_.map.imageName = name;
    const std::string folder = Native(QFileInfo(file).absolutePath());
    if (stations::FitsConfiguration(name)) {
        state_.configuration.lastImage = name;
    }
    if (stations::FitsConfiguration(folder)) {
        state_.configuration.lastMapFolder = folder;
    }
}

void MapFiles::ReadCalibration()
{
    map::InfBounds bounds;
    const std::optional<std::string> name = Companion(map::Companion::Calibration);
    if (name && !IsPicture(*name)) {
        const base::FileContents file = base::ReadFile(*name);
        bounds = map::ReadInf(Text(file.bytes));
        if (file.status == base::FileStatus::Unreadable) {
            Tell(u"Die Datei "_s + Shown(*name) + u" lässt sich nicht lesen!"_s);
        }
    }
    state_.map.bounds = bounds;
    state_.map.edges = map::EdgesOf(bounds);
}

void MapFiles::ReadAdjustment()
{
    const std::optional<std::string> name = Companion(map::Companion::Adjustment);
    if (!name || IsPicture(*name)) {
        return;
    }
    const base::FileContents file = base::ReadFile(*name);
    if (file.status == base::FileStatus::Missing) {
        return;
    }
    map::Adjustment adjustment = map::UnpackAdjustment(file.bytes);
    if (file.status == base::FileStatus::Unreadable
        || adjustment.state != map::AdjustmentState::Good) {
        Tell(u"Die Justagedatei "_s + Shown(*name)
             + u" ist beschädigt. Die Karte wird ohne Referenzpunkte geladen."_s);
        return;
    }
    if (adjustment.size != image_.Size()) {
        Tell(u"Die Justagedatei "_s + Shown(*name) + u" gehört zu einem Bild von "_s
             + SizeText(adjustment.size) + u" Pixeln, das Bild hat "_s + SizeText(image_.Size())
             + u" Pixel."_s);
    }
    state_.map.references.Replace(std::move(adjustment.entries), adjustment.refCount);
}

bool MapFiles::MayReplaceCompanion(const std::string& name, map::Companion companion)
{
    if (!MayReplace(window_, state_, dialogs_, name)) {
        return false;
    }
    if (IsPicture(name)) {
        Tell(u"Die Datei "_s + Shown(name)
             + u" ist das Bild der Karte, sie wird nicht überschrieben!"_s);
        return false;
    }
    const bool calibration = companion == map::Companion::Calibration;
    const std::optional<std::string> other =
        Companion(calibration ? map::Companion::Adjustment : map::Companion::Calibration);
    if (other && base::SameFile(name, *other)) {
        Tell(u"Die Datei "_s + Shown(name) + u" ist zugleich die "_s
             + (calibration ? u"Justagedatei"_s : u"INF-Datei"_s)
             + u" des Bildes, sie wird nicht überschrieben!"_s);
        return false;
    }
    return true;
}

std::optional<std::string> MapFiles::WritableCompanion(map::Companion companion)
{
    if (state_.map.references.RefCount() < map::kLeastReferences) {
        Tell(u"Fehler: mindestens 3 gültige Referenzpunkte erforderlich!"_s);
        return std::nullopt;
    }
    std::optional<std::string> name = Companion(companion);
    if (!name) {
        Tell(u"Der Name des Bildes "_s + Shown(state_.map.imageName)
             + u" hat keine Endung: es gibt keine Datei dazu!"_s);
        return std::nullopt;
    }
    if (!MayReplaceCompanion(*name, companion)) {
        return std::nullopt;
    }
    return name;
}

void MapFiles::WriteCompanion(const std::string& name, bool (*known)(base::ByteView),
                              base::ByteView bytes)
{
    const base::FileContents old = base::ReadFile(name);
    auto oldBytes =
        old.status == base::FileStatus::Unreadable || !(old.bytes.empty() || known(old.bytes))
            ? base::OldBytes::Unknown
            : base::OldBytes::Known;
    TellWriteError(window_, dialogs_, base::ReplaceFile(name, {bytes}, oldBytes).error, name);
}

void MapFiles::SaveAdjustment()
{
    if (const std::optional<std::string> name = WritableCompanion(map::Companion::Adjustment)) {
        const auto known = [](base::ByteView bytes) {
            return map::UnpackAdjustment(bytes).state == map::AdjustmentState::Good;
        };
        WriteCompanion(*name, known, map::PackAdjustment(state_.map.references, image_.Size()));
    }
}

void MapFiles::SaveCalibration()
{
    const std::optional<std::string> name = WritableCompanion(map::Companion::Calibration);
    if (!name) {
        return;
    }
    const std::optional<std::string> text = map::InfText(state_.map.references, image_.Size(),
                                                         Shown(state_.map.imageName).toStdString());
    if (!text) {
        Tell(u"Die Referenzpunkte ergeben an den Rändern des Bildes keine Position: Die Datei "_s
             + Shown(*name) + u" wird nicht geschrieben!"_s);
        return;
    }
    if (QFileInfo::exists(Shown(*name))
        && !dialogs_.AskOkCancel(window_, u"INF Datei erzeugen"_s,
                                 u"Datei existiert bereits. Löschen?"_s)) {
        return;
    }
    const auto* const bytes = reinterpret_cast<const unsigned char*>(text->data());
    WriteCompanion(
        *name, [](base::ByteView old) { return map::IsInf(Text(old)); },
        base::ByteView(bytes, text->size()));
}

}  // namespace ui
