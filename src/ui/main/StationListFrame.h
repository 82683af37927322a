// The frame of the station list: the list, its sort selector and its buttons.

#pragma once

#include <functional>
#include <vector>

#include <QGroupBox>
#include <QPointer>

#include "app/AppState.h"
#include "stations/WorkingFile.h"

class QComboBox;
class QPushButton;

namespace ui {

class StationListModel;
class StationListView;
class UserDialogs;

// What goes with a change of the database.
struct DatabaseChange {
    std::vector<double> keyValues = {};  // of every record, for the key that leads the lines
    std::function<void()> show = {};     // what the filled list shows besides
    bool isOnDisk = false;               // the database was read from the working file
};

class StationListFrame : public QGroupBox {
    Q_OBJECT

public:
    StationListFrame(app::AppState& state, UserDialogs& dialogs, QWidget* parent = nullptr);

    // The one door for what has changed in the database: fills the list, rewrites the working file
    // and announces the change. Whoever calls it tells of an error.
    stations::Written TakeDatabaseChange(const DatabaseChange& change = {});
    // The same, and tells of an error; false then.
    bool TakeAndTell(const DatabaseChange& change = {});

    // Fills the list: line k is record k. No line is marked afterwards. `keyValues` as in a change.
    void List1Load(const std::vector<double>& keyValues = {});
    // Fills the list when it has more or fewer lines than there are records.
    void List1Check();

    // Shows the frame, filled, for a panel: a click on a line will then load (Get) or delete
    // (Clear). The focus goes into the list and at Close() to `opener`.
    void Open(app::ListMode mode, int targetPanel, QWidget* opener);
    // The same for the list as it is; at Close() the focus goes where it went before.
    void Show(app::ListMode mode, int targetPanel);
    // Marks exactly these lines, in ascending order, and shows the frame so that they can be seen.
    // The focus stays; at Close() it comes back there.
    void ShowMarks(const std::vector<std::size_t>& rows);
    // Ends the list mode and hides the frame.
    void Close();

    // Where the focus goes when nothing else is known.
    void SetOpener(QWidget* opener) { opener_ = opener; }

    // Switches the sort selector off and back to its first entry.
    void ResetSortCombo() const;

    StationListView* List1;
    QComboBox* SortCombo;
    QPushButton* Command2;  // "schliessen"
    QPushButton* Command3;  // "Sortieren": switches the sort selector on
    QPushButton* Command6;  // "Auslagern": move the marked entries out to a file
    QPushButton* Command7;  // "Sichern": save the marked entries to a file

signals:
    void DatabaseChanged(const stations::Written& written);

private:
    QPushButton* NewButton(const QString& name, const QString& text);
    void SortChosen(int entry);

    app::AppState& state_;
    UserDialogs& dialogs_;
    StationListModel* model_;
    QPointer<QWidget> opener_;
};

}  // namespace ui
