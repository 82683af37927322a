#include "ui/main/StationListModel.h"

#include <utility>

namespace ui {

StationListModel::StationListModel(const stations::StationDatabase& database,
                                   const base::NumberFormat& format, QObject* parent)
    : QAbstractListModel(parent), database_(database), format_(format)
{
}

void StationListModel::Fill(stations::ListKey key, std::vector<double> keyValues)
{
    beginResetModel();
    lines_ = static_cast<int>(database_.Count());
    key_ = key;
    keyValues_ = std::move(keyValues);
    endResetModel();
}

QString StationListModel::LongestLine() const
{
    return database_.Empty() ? QString() : Line(stations::LongestLine(database_.Records(), key_));
}

int StationListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : lines_;
}

QVariant StationListModel::data(const QModelIndex& index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    if (role != Qt::DisplayRole || !index.isValid() || row >= database_.Count()) {
        return {};
    }
    return Line(row);
}

QString StationListModel::Line(std::size_t row) const
{
    const double value = row < keyValues_.size() ? keyValues_[row] : 0.0;
    return QString::fromStdString(stations::ListLine(database_[row], key_, value, format_));
}

}  // namespace ui
