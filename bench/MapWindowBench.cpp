// The map window with 25000 stations beside plain painting of the same.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <functional>
#include <memory>
#include <random>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QImageReader>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

#include "SideBySide.h"
#include "app/AppState.h"
#include "map/Georeference.h"
#include "ui/ScriptedDialogs.h"
#include "ui/main/MainForm.h"
#include "ui/main/StationListFrame.h"
#include "ui/map/FakeMainWindow.h"
#include "ui/map/Gform.h"
#include "ui/map/MapPainter.h"
#include "ui/map/MapPane.h"

namespace {

using namespace Qt::StringLiterals;

constexpr int kStations = 25'000;
constexpr plot::SurfaceSize kSurface{1200, 800};
constexpr QSize kImage{3000, 2000};
constexpr QColor kPlate{0x30, 0x8C, 0xC6};

// A north-up map of one degree, 25 references on it, and stations within the surface's clip.
struct World {
    World()
    {
        QImage picture(kImage, QImage::Format_RGB32);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                picture.setPixel(x, y, qRgb(x & 255, y & 255, 200));
            }
        }
        image.Set(picture);
        // As placed by hand: no two in one row or column.
        std::uniform_int_distribution<int> jitter(-90, 90);
        std::vector<map::ReferencePoint> references;
        for (int row = 0; row < 5; ++row) {
            for (int column = 0; column < 5; ++column) {
                const double x =
                    std::floor(kImage.width() * (0.05 + 0.22 * column)) + jitter(random);
                const double y = std::floor(kImage.height() * (0.05 + 0.22 * row)) + jitter(random);
                references.push_back({.X = x,
                                      .Y = y,
                                      .Longitude = Longitude(x) + 1e-4 * ((row * column) % 3),
                                      .Latitude = Latitude(y) + 1e-4 * ((row + column) % 3)});
            }
        }
        state.map.references.Replace(references, 25);
        state.map.mapImage = true;
        Fill();
        state.shown.position = {state.database[0].Position(), state.database[1].Position()};
        state.shown.record = {state.database[0], state.database[1]};
        view.surface = kSurface;
        view.clipOrigin = {.x = 600, .y = 500};
    }

    static double Longitude(double x) { return 11.0 + x / kImage.width(); }
    static double Latitude(double y) { return 49.0 - y / kImage.height(); }

    void Fill()
    {
        std::uniform_real_distribution<double> x(600.0 + 5, 600.0 + kSurface.width - 5);
        std::uniform_real_distribution<double> y(500.0 + 5, 500.0 + kSurface.height - 5);
        std::uniform_int_distribution<int> letter('A', 'Z');
        for (int i = 0; i < kStations; ++i) {
            stations::StationTexts texts;
            texts.callsign = "DL0AAA";
            for (const std::size_t k : {3U, 4U, 5U}) {
                texts.callsign[k] = static_cast<char>(letter(random));
            }
            texts.callsign[2] = static_cast<char>('0' + i % 10);
            texts.name = texts.callsign;
            std::reverse(texts.name.begin(), texts.name.end());
            state.database.Append(stations::BuildRecord(
                texts, {.latitude = Latitude(y(random)), .longitude = Longitude(x(random))}, ""));
        }
    }

    std::mt19937 random{1};
    app::AppState state;
    ui::MapImage image;
    ui::FakeMainWindow mainWindow{state};
    plot::MapView view;
};

// What the program's painter draws, once more by plain calls.
struct PlainMarkers {
    explicit PlainMarkers(const ui::MapPainter& painter)
    {
        for (const ui::Marker& marker : painter.Markers()) {
            points.emplace_back(marker.at.x, marker.at.y);
            const std::string_view label = painter.LabelOf(marker);
            labels.push_back(QString::fromLatin1(label.data(), static_cast<int>(label.size())));
        }
    }

    void Paint(QImage& frame) const
    {
        QPainter painter(&frame);
        QFont font;
        font.setPixelSize(ui::LabelFont(1.0).pixelSize());
        painter.setFont(font);
        painter.setPen(ui::kMapInk);
        const QFontMetrics metrics(painter.font());
        for (std::size_t i = 0; i < points.size(); ++i) {
            const QPoint at = points[i];
            const int width = metrics.horizontalAdvance(labels[i]);
            painter.fillRect(at.x() - 4, at.y() - 5, width + 10, 12, kPlate);
            painter.drawRect(at.x() - 2, at.y() - 2, 4, 4);
            painter.drawText(at.x() + 4, at.y() + 4, labels[i]);
        }
    }

    std::vector<QPoint> points;
    std::vector<QString> labels;
};

// The least that has to be written: plates, squares and the cells of the characters of those
// markers that are not wholly covered.
class RasterLimit {
public:
    RasterLimit(const ui::MapPainter& painter, QImage& frame) : frame_(frame)
    {
        const ui::MarkerPainter marker(1.0, kPlate, ui::kMapInk);
        plot::CoverMask mask;
        mask.Reset(kSurface);
        const auto markers = painter.Markers();
        for (std::size_t i = markers.size(); i-- > 0;) {
            const std::string_view label = painter.LabelOf(markers[i]);
            const plot::PixelBox plate = marker.Plate(markers[i].at, marker.TextWidth(label));
            if (!mask.FreePart(plate).Empty()) {
                mask.Cover(plate);
                visible_.push_back({markers[i].at, plate, label});
            }
        }
        std::reverse(visible_.begin(), visible_.end());
        for (int c = 0; c < 128; ++c) {
            QImage cell(kCell, kHeight, QImage::Format_RGB32);
            cell.fill(kPlate);
            QPainter cellPainter(&cell);
            cellPainter.setFont(ui::LabelFont(1.0));
            cellPainter.setPen(ui::kMapInk);
            cellPainter.drawText(0, 9, QString(QChar(c)));
            cells_[static_cast<std::size_t>(c)] = cell;
            advances_[static_cast<std::size_t>(c)] =
                QFontMetrics(ui::LabelFont(1.0)).horizontalAdvance(QChar(c));
        }
    }

    std::size_t Visible() const { return visible_.size(); }

    void Paint()
    {
        auto* const pixels = reinterpret_cast<QRgb*>(frame_.bits());
        const int stride = frame_.width();
        for (const Item& item : visible_) {
            for (int y = std::max(0, item.plate.top); y < std::min(800, item.plate.bottom); ++y) {
                const int left = std::max(0, item.plate.left);
                const int right = std::min(1200, item.plate.right);
                std::fill(pixels + y * stride + left, pixels + y * stride + right, kPlate.rgb());
            }
            Square(pixels, stride, item.at);
            int x = item.at.x + 4;
            for (const char c : item.label) {
                const auto k = static_cast<std::size_t>(c);
                Cell(pixels, stride, x, item.plate.top, cells_[k], advances_[k]);
                x += advances_[k];
            }
        }
    }

private:
    static constexpr int kCell = 14;
    static constexpr int kHeight = 12;

    struct Item {
        plot::SurfacePoint at;
        plot::PixelBox plate;
        std::string_view label;
    };

    static void Square(QRgb* pixels, int stride, plot::SurfacePoint at)
    {
        for (int y = std::max(0, at.y - 2); y <= std::min(799, at.y + 2); ++y) {
            for (int x = std::max(0, at.x - 2); x <= std::min(1199, at.x + 2); ++x) {
                if (std::max(std::abs(x - at.x), std::abs(y - at.y)) == 2) {
                    pixels[y * stride + x] = ui::kMapInk.rgb();
                }
            }
        }
    }

    static void Cell(QRgb* pixels, int stride, int left, int top, const QImage& cell, int width)
    {
        const int columns = std::min({width, 1200 - left, kCell});
        if (columns <= 0) {
            return;
        }
        for (int y = std::max(0, top); y < std::min(800, top + kHeight); ++y) {
            std::memcpy(pixels + y * stride + left, cell.constScanLine(y - top),
                        static_cast<std::size_t>(columns) * sizeof(QRgb));
        }
    }

    QImage& frame_;
    std::vector<Item> visible_;
    std::array<QImage, 128> cells_;
    std::array<int, 128> advances_{};
};

// The slowest of some repetitions of an event, from the event to the repainted surface.
void Slowest(const char* name, ui::Gform& form, const std::function<void()>& event)
{
    double slowest = 0.0;
    for (int i = 0; i < 12; ++i) {
        const double seconds = bench::Seconds([&] {
            event();
            form.pane->Picture1->repaint();
        });
        if (i > 1) {
            slowest = std::max(slowest, seconds);
        }
    }
    std::printf("%-58s %9.1f ms  (at most 50)\n", name, slowest * 1e3);
    std::fflush(stdout);
}

void Trigger(const ui::Gform& form, const char* item)
{
    form.findChild<QAction*>(QLatin1StringView(item))->trigger();
}

void MeasureEvents()
{
    QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    World world;
    ui::ScriptedDialogs dialogs;
    ui::MainForm window(world.state, dialogs);
    const auto references = world.state.map.references;
    window.Start();
    world.Fill();
    window.findChild<ui::StationListFrame*>()->List1Load();
    world.state.map.references = references;
    world.state.map.edges = {.left = 11.0, .right = 12.0, .upper = 49.0, .lower = 48.0};
    auto* const form = new ui::Gform(world.state, world.image, window, dialogs);
    form->show();
    form->resize(form->size() - form->centralWidget()->size() + QSize(1300, 840));
    QApplication::processEvents();
    form->pane->Picture1->repaint();
    const auto bar = [form](int step) {
        form->pane->HScroll1->setValue(500 + step % 40);
        form->pane->VScroll1->setValue(450 + step % 30);
    };
    bar(0);
    const auto click = [form](int step) {
        QTest::mouseClick(form->pane->Picture1, Qt::LeftButton, {}, QPoint(300 + step, 200));
    };
    int step = 0;
    Slowest("scroll step", *form, [&] { bar(++step); });
    for (const char* const item : {"MnuSel", "MnuAlle", "MnuS1Anz", "MnuS2Anz", "MnuRef",
                                   "MnuOptAusg", "MnuRast", "MnuEig"}) {
        Slowest(item, *form, [&] { Trigger(*form, item); });
    }
    Slowest("MnuRZ2, MnuRZ1: labels change", *form,
            [&] { Trigger(*form, ++step % 2 == 0 ? "MnuRZ1" : "MnuRZ2"); });
    const struct {
        const char* item;
        const char* name;
    } clicks[] = {{"MnuSet1", "click: set Station 1"},
                  {"MnuSet2", "click: set Station 2"},
                  {"MnuRouS", "click: route"},
                  {"MnuAddLand", "click: landmark, its save included"},
                  {"MnuS2Ref", "click: add a reference: table changes"},
                  {"MnuRefClr", "click: delete a reference: table changes"}};
    for (const auto& mode : clicks) {
        world.state.database.Truncate(kStations - 100);
        window.findChild<ui::StationListFrame*>()->List1Load();
        Trigger(*form, mode.item);
        Slowest(mode.name, *form, [&] {
            world.state.shown.position[1].latitude += 1e-3;
            click(++step);
        });
    }
    Trigger(*form, "MnuPicOff");
    world.state.configuration.zoomLevel = 19;
    Slowest("zoom step", *form, [&] {
        QTest::mouseClick(++step % 2 == 0 ? form->pane->Command1 : form->pane->Command2,
                          Qt::LeftButton);
    });
    delete form;
}

void MeasureLoading()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"karte.jpg"_s);
    {
        QImage picture(10'000, 10'000, QImage::Format_RGB32);
        for (int y = 0; y < picture.height(); ++y) {
            auto* const row = reinterpret_cast<QRgb*>(picture.scanLine(y));
            for (int x = 0; x < picture.width(); ++x) {
                row[x] = qRgb((x * y) >> 9, x >> 3, y >> 3);
            }
        }
        picture.save(file, "JPEG", 85);
    }
    bench::Run({"loading a JPEG of 10000 x 10000 / QImageReader alone", 1.2,
                [&] {
                    ui::MapImage image;
                    return bench::Seconds([&] { image.Load(file); });
                },
                [&] {
                    QImageReader::setAllocationLimit(0);
                    return bench::Seconds([&] { QImageReader(file).read(); });
                },
                5});
}

}  // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    World world;
    ui::MapPainter painter(world.state, world.image, world.mainWindow);
    QImage frame(kSurface.width, kSurface.height, QImage::Format_RGB32);
    const auto redraw = [&] { painter.Redraw(frame, world.view, 1.0, kPlate); };
    redraw();

    const PlainMarkers plain(painter);
    QImage plainFrame = frame.copy();
    RasterLimit limit(painter, plainFrame);
    std::printf("%zu markers, %zu not wholly covered\n", painter.Markers().size(), limit.Visible());
    const auto plainFrameSeconds = [&] { return bench::Seconds([&] { plain.Paint(plainFrame); }); };

    bench::Run({"full frame, nothing changed / plain painting", 0.045,
                [&] { return bench::Seconds(redraw); }, plainFrameSeconds, 15});
    bench::Run({"full frame, nothing changed / raster limit", 1.6,
                [&] { return bench::Seconds(redraw); },
                [&] { return bench::Seconds([&] { limit.Paint(); }); }});

    // Two label fields whose texts are all different take turns.
    auto choice = stations::LabelChoice::Callsign;
    std::unique_ptr<ui::MapPainter> fresh;
    bench::Run(
        {"first frame after the labels changed / plain painting", 0.33,
         [&] {
             fresh = std::make_unique<ui::MapPainter>(world.state, world.image, world.mainWindow);
             world.state.configuration.labelChoice = choice;
             fresh->Redraw(frame, world.view, 1.0, kPlate);
             choice = choice == stations::LabelChoice::Callsign ? stations::LabelChoice::Name
                                                                : stations::LabelChoice::Callsign;
             world.state.configuration.labelChoice = choice;
             return bench::Seconds([&] { fresh->Redraw(frame, world.view, 1.0, kPlate); });
         },
         plainFrameSeconds, 11});
    world.state.configuration.labelChoice = stations::LabelChoice::Callsign;
    redraw();

    bench::Run({"first frame after the reference table changed / plain", 0.33,
                [&] {
                    auto& table = world.state.map.references;
                    std::vector<map::ReferencePoint> points(table.Points().begin(),
                                                            table.Points().end());
                    points[12].X += points[12].X > 1400.0 ? -1.0 : 1.0;
                    table.Replace(points, 25);
                    return bench::Seconds(redraw);
                },
                plainFrameSeconds, 11});

    world.state.map.mapImage = false;
    world.state.configuration.zoomLevel = 19;
    bench::Run({"polar: first frame after Station 1 changed / plain", 0.33,
                [&] {
                    world.state.shown.position[0].latitude +=
                        world.state.shown.position[0].latitude > 48.6 ? -0.001 : 0.001;
                    return bench::Seconds(redraw);
                },
                plainFrameSeconds, 11});
    world.state.map.mapImage = true;
    redraw();

    int step = 0;
    bench::Run(
        {"scroll step with the image / clip alone + full frame", 1.3,
         [&] {
             world.view.clipOrigin = {.x = 600 + step % 5, .y = 500 + step % 3};
             ++step;
             return bench::Seconds(redraw);
         },
         [&] {
             const double clip = bench::Seconds([&] {
                 QPainter(&plainFrame).drawImage(0, 0, world.image.Clip({600, 500, 1200, 800}));
             });
             world.view.clipOrigin = {.x = 600, .y = 500};
             return clip + bench::Seconds(redraw);
         }});
    MeasureEvents();
    MeasureLoading();
    return 0;
}
