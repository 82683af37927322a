// The configuration dialog.

#pragma once

#include <array>

#include <QDialog>

#include "app/AppState.h"

class QCheckBox;
class QPushButton;
class QRadioButton;

namespace ui {

// Edits a copy of the configuration. "O.k." takes it over and announces that; closing the dialog in
// any other way drops it.
class CfgForm : public QDialog {
    Q_OBJECT

public:
    explicit CfgForm(app::AppState& state, QWidget* parent = nullptr);

    // Copies the configuration anew and shows the dialog, modal, without waiting.
    void Edit();

    // Grad-Format. Shown only: "O.k." leaves the degree format as it was.
    QRadioButton* Option1;  // "G-M-S (Sekunden)"
    QRadioButton* Option2;  // "G-M-H (Hundertstel Minuten)"
    // Gauss Krüger Normierung
    QRadioButton* Option3;                 // datum 0
    QRadioButton* Option4;                 // datum 1
    std::array<QRadioButton*, 4> Option5;  // listing mode
    QCheckBox* Check1;                     // "Autoredraw"
    QCheckBox* Check2;                     // "Himmelsrichtung"
    QPushButton* Command1;                 // "O.k."
    QPushButton* Command2;                 // "abbrechen"

signals:
    void Confirmed();

private:
    void ShowSettings();
    void Confirm();

    app::AppState& state_;
    stations::Configuration copy_;
};

}  // namespace ui
