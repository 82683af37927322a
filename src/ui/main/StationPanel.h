// One station block of the main window.

#pragma once

#include <array>

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

    // Text4 to Text11: longitude degrees, minutes, third, hemisphere; latitude likewise.
    std::array<EntryField*, 8> DegreeMinuteFields() const
    {
        return {Text4, Text5, Text6, Text7, Text8, Text9, Text10, Text11};
    }

    // The texts of the station; what was typed is composed.
    void ShowTexts(const stations::StationTexts& texts) const;
    stations::StationTexts Texts() const;

    // Text14 to Text19: callsign, name, place, frequency, remark, date.
    std::array<EntryField*, 6> StationFields() const
    {
        return {Text14, Text15, Text16, Text17, Text18, Text19};
    }

    const int station;  // 0 = Station 1, 1 = Station 2

    EntryField* Text1;   // Maidenhead locator
    EntryField* Text2;   // longitude, decimal degrees
    EntryField* Text3;   // latitude, decimal degrees
    EntryField* Text4;   // longitude degrees
    EntryField* Text5;   // longitude minutes
    EntryField* Text6;   // longitude seconds or hundredths of a minute
    EntryField* Text7;   // longitude hemisphere letter
    EntryField* Text8;   // latitude degrees
    EntryField* Text9;   // latitude minutes
    EntryField* Text10;  // latitude seconds or hundredths of a minute
    EntryField* Text11;  // latitude hemisphere letter
    EntryField* Text12;  // Gauss-Krüger easting (Rechtswert)
    EntryField* Text13;  // Gauss-Krüger northing (Hochwert)
    EntryField* Text14;  // callsign
    EntryField* Text15;  // name
    EntryField* Text16;  // place
    EntryField* Text17;  // frequency
    EntryField* Text18;  // remark
    EntryField* Text19;  // date
    EntryField* Text20;  // UTM zone
    EntryField* Text21;  // UTM easting
    EntryField* Text22;  // UTM northing

    QPushButton* Command1;  // "Laden": load a station from the list
    QPushButton* Command4;  // "REMOVE": delete records from the list
    QPushButton* SA;        // "Sichern": save the panel as a new record

private:
    EntryField* NewField(const char* name, int columns, const QString& accessibleName);
    QLabel* NewCaption(const QString& text, QWidget* buddy);

    void AddInfo(QGridLayout& form);
    void AddLocator(QGridLayout& form);
    void AddDecimal(QGridLayout& form);
    void AddDegreeMinute(QGridLayout& form);
    void AddGaussKrueger(QGridLayout& form);
    void AddUtm(QGridLayout& form);
    void AddButtons(QGridLayout& grid, int row);

    QWidget* window_;
    int captions_ = 0;  // made so far; numbers the elements of Label12
    // Behind longitude degrees, minutes, third; latitude likewise.
    std::array<QLabel*, 6> unit_ = {};
};

}  // namespace ui
