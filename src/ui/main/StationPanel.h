// One station block of the main window.

#pragma once

#include <array>
#include <initializer_list>
#include <span>

#include <QObject>

#include "geo/AngleText.h"
#include "stations/StationRecord.h"
#include "ui/main/EntryField.h"

class QGridLayout;
class QLabel;
class QPushButton;
class QWidget;

namespace ui {

// The window holds two of these, one per station: what the program calls element 1 of the control
// array Text12 is the Text12 of the second panel. A panel only lays out its controls; reading and
// writing them is the business of CoordinateFields and MainForm.
//
// Both panels stand in one grid, so that their forms line up under one row of headings.
class StationPanel : public QObject {
    Q_OBJECT

public:
    // Takes `kRows` rows of the grid, from `row` on, and the columns of FormColumn.
    static constexpr int kRows = 3;
    StationPanel(int station, QGridLayout& grid, int row);

    // Grid columns of the forms, in reading order.
    enum FormColumn { Info, Locator, Decimal, DegreeMinute, GaussKrueger, Utm, Columns };

    // Between the frame of a block and its controls, in pixels.
    static constexpr int kPadding = 8;

    // Signs between and behind the degree-minute fields, which tell what the third field counts.
    void ShowUnits(geo::DegreeMinuteMode mode);

    // The texts of the station; what was typed is composed.
    void ShowTexts(const stations::StationTexts& texts) const;
    stations::StationTexts Texts() const;

    // Callsign, name, place, frequency, remark, date.
    std::span<EntryField* const> StationFields() const { return std::span(Text).subspan(14, 6); }

    const int station;  // 0 = Station 1, 1 = Station 2

    // Text[i] is the field Texti; there is no Text0.
    //
    //  - 1: Maidenhead locator
    //  - 2, 3: longitude and latitude, decimal degrees
    //  - 4 to 7: longitude: degrees, minutes, seconds or hundredths of a minute, hemisphere letter
    //  - 8 to 11: latitude likewise
    //  - 12, 13: Gauss-Krüger easting (Rechtswert) and northing (Hochwert)
    //  - 14 to 19: callsign, name, place, frequency, remark, date
    //  - 20 to 22: UTM zone, easting, northing
    std::array<EntryField*, 23> Text = {};

    QPushButton* Command1;  // "Laden": load a station from the list
    QPushButton* Command4;  // "REMOVE": delete records from the list
    QPushButton* SA;        // "Sichern": save the panel as a new record

private:
    // A field and the caption before it.
    struct Entry {
        int number;  // of the field
        int columns;
        QString caption;
        QString accessibleName;
    };

    EntryField* NewField(int number, int columns, const QString& accessibleName);
    QLabel* NewCaption(const QString& text, QWidget* buddy);
    void AddEntry(QGridLayout& form, const Entry& entry, int row, int column);

    void AddRows(QGridLayout& form, std::initializer_list<Entry> entries);
    void AddInfo(QGridLayout& form);
    void AddDegreeMinute(QGridLayout& form);
    void AddButtons(QGridLayout& grid, int row);

    QWidget* window_;
    int captions_ = 0;                       // made so far; numbers the elements of Label12
    std::array<QLabel*, 2> thirdUnit_ = {};  // behind the third fields of latitude and longitude
};

}  // namespace ui
