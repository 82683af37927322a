// Filling the station list with 25000 lines until the event loop is idle, beside a QListWidget that
// is given the same lines by addItem.

#include <cstdio>
#include <memory>
#include <vector>

#include <QApplication>
#include <QListWidget>

#include "SideBySide.h"
#include "app/AppState.h"
#include "ui/main/StationListModel.h"
#include "ui/main/StationListView.h"

namespace {

using namespace Qt::StringLiterals;

constexpr int kWidth = 700;
constexpr int kHeight = 300;

stations::StationDatabase Stations()
{
    stations::StationDatabase database;
    for (int i = 0; database.Count() < stations::kMaxRecords; ++i) {
        database.Append(stations::BuildRecord({.callsign = "QQ" + std::to_string(i),
                                               .name = "Name" + std::to_string(i % 300),
                                               .place = "Ort am See " + std::to_string(i % 4000),
                                               .frequency = {},
                                               .remark = {},
                                               .date = {}},
                                              {.latitude = 48.0, .longitude = 11.0},
                                              "2001.01.01-00:00:00"));
    }
    return database;
}

// The program's list box with its model.
struct OurList {
    explicit OurList(const stations::StationDatabase& database) : model(database, format, nullptr)
    {
        view.setModel(&model);
        view.resize(kWidth, kHeight);
        view.show();
        QCoreApplication::processEvents();
    }

    void Fill()
    {
        model.Fill(stations::ListKey::Callsign, {});
        view.SetLongestLine(model.LongestLine());
        QCoreApplication::processEvents();
    }

    base::NumberFormat format;
    ui::StationListModel model;
    ui::StationListView view;
};

struct PeerList {
    PeerList()
    {
        widget.setSelectionMode(QAbstractItemView::ExtendedSelection);
        widget.resize(kWidth, kHeight);
        widget.show();
        QCoreApplication::processEvents();
    }

    void Fill(const std::vector<QString>& lines)
    {
        widget.clear();
        for (const QString& line : lines) {
            widget.addItem(line);
        }
        QCoreApplication::processEvents();
    }

    QListWidget widget;
};

}  // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    const stations::StationDatabase database = Stations();
    std::vector<QString> lines;
    for (const stations::StationRecord& record : database.Records()) {
        lines.push_back(QString::fromStdString(
            stations::ListLine(record, stations::ListKey::Callsign, 0.0, base::NumberFormat())));
    }
    std::printf("%-58s %12s %12s %7s\n", "25000 lines", "list", "QListWidget", "ratio");

    std::unique_ptr<OurList> ours;
    std::unique_ptr<PeerList> peer;
    constexpr int kRounds = 15;
    bench::Run({"first fill", 0.020,
                [&] {
                    ours = std::make_unique<OurList>(database);
                    return bench::Seconds([&] { ours->Fill(); });
                },
                [&] {
                    peer = std::make_unique<PeerList>();
                    return bench::Seconds([&] { peer->Fill(lines); });
                },
                kRounds});
    bench::Run({"refill", 0.018, [&] { return bench::Seconds([&] { ours->Fill(); }); },
                [&] { return bench::Seconds([&] { peer->Fill(lines); }); }, kRounds});
    return EXIT_SUCCESS;
}
