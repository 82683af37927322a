// The lines of the station list, made from the records when they are shown.

#pragma once

#include <vector>

#include <QAbstractListModel>

#include "base/NumberText.h"
#include "stations/ListLine.h"
#include "stations/StationDatabase.h"

namespace ui {

// Line k is record k. The model copies no line: it keeps the number of lines, the layout and, for
// the distance and the direction, the values of its last fill. Whoever reorders or removes records
// fills it anew.
class StationListModel : public QAbstractListModel {
    Q_OBJECT

public:
    StationListModel(const stations::StationDatabase& database, const base::NumberFormat& format,
                     QObject* parent);

    // One line for each record. `keyValues` is empty unless the key has values.
    void Fill(stations::ListKey key, std::vector<double> keyValues);

    // The line that needs the most room, roughly; empty when there are none.
    QString LongestLine() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QString Line(std::size_t row) const;

    const stations::StationDatabase& database_;
    const base::NumberFormat& format_;
    int lines_ = 0;
    stations::ListKey key_ = stations::ListKey::Callsign;
    std::vector<double> keyValues_;
};

}  // namespace ui
