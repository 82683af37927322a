// One keystroke in a coordinate field, from the key event until every field of the row and the
// result block is painted, beside writing and painting the same texts alone, in the same window.

#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include "Interleaved.h"
#include "app/AppState.h"
#include "ui/UserDialogs.h"
#include "ui/main/EntryField.h"
#include "ui/main/MainForm.h"
#include "ui/main/StationListFrame.h"

namespace {

using namespace Qt::StringLiterals;

// What the window shows for Station 2, as texts of its widgets.
struct Shown {
    std::vector<std::pair<ui::EntryField*, QString>> fields;
    std::vector<std::pair<QLabel*, QString>> labels;
};

// A window, a field of it, and a key that is typed and taken back in turn.
class Keystroke {
public:
    Keystroke(ui::MainForm& window, app::AppState& state, const char* fieldName,
              const QString& start, char key)
        : state_(state), field_(window.findChild<QLineEdit*>(QLatin1StringView(fieldName))),
          key_(key)
    {
        field_->setFocus();
        field_->setText(start);
        QCoreApplication::processEvents();
        group_ = state_.entry.activeGroup;
        for (std::size_t i = 0; i < shown_.size(); ++i) {
            Type();
            shown_[i] = Read(window);
        }
    }

    double Type()
    {
        state_.entry.activeGroup = group_;
        if (typed_) {
            QTest::keyClick(field_, Qt::Key_Backspace);
        } else {
            QTest::keyClick(field_, key_);
        }
        typed_ = !typed_;
        QCoreApplication::processEvents();
        return static_cast<double>(field_->text().size());
    }

    // The same texts, written with no form active, so that nothing is computed.
    double Write()
    {
        state_.entry.activeGroup = app::EntryGroup::None;
        for (const auto& [field, text] : shown_[typed_ ? 1 : 0].fields) {
            field->Show(text);
        }
        field_->setCursorPosition(static_cast<int>(field_->text().size()));  // for the next key
        for (const auto& [label, text] : shown_[typed_ ? 1 : 0].labels) {
            label->setText(text);
        }
        typed_ = !typed_;
        QCoreApplication::processEvents();
        return static_cast<double>(field_->text().size());
    }

private:
    static Shown Read(const ui::MainForm& window)
    {
        Shown shown;
        for (ui::EntryField* const field : window.findChildren<ui::EntryField*>()) {
            if (field->objectName().endsWith(u"_1"_s)) {
                shown.fields.emplace_back(field, field->text());
            }
        }
        for (const QString& name : {u"Label3"_s, u"Label4_0"_s, u"Label4_1"_s}) {
            auto* const label = window.findChild<QLabel*>(name);
            shown.labels.emplace_back(label, label->text());
        }
        return shown;
    }

    app::AppState& state_;
    QLineEdit* field_;
    char key_;
    app::EntryGroup group_ = app::EntryGroup::None;
    bool typed_ = false;
    std::array<Shown, 2> shown_;  // after typing, after taking back
};

constexpr int kKeysPerRound = 40;

bench::Work Repeated(double (Keystroke::*step)(), Keystroke& keystroke)
{
    return [step, &keystroke] {
        double sum = 0.0;
        for (int i = 0; i < kKeysPerRound; ++i) {
            sum += (keystroke.*step)();
        }
        return sum;
    };
}

void Measure(ui::MainForm& window, app::AppState& state, std::size_t records)
{
    // Each key moves the station, so that every other form and the result change.
    const struct {
        const char* form;
        const char* field;
        QString start;
        char key;
    } fields[] = {{"locator", "Text1_1", u"JN58T"_s, 'H'},
                  {"decimal degrees", "Text3_1", u"4"_s, '8'},
                  {"degree-minutes", "Text9_1", u"1"_s, '8'},
                  {"Gauss-Krueger", "Text12_1", u"447218"_s, '8'},
                  {"UTM", "Text21_1", u"69462"_s, '0'}};
    for (const auto& f : fields) {
        Keystroke keystroke(window, state, f.field, f.start, f.key);
        bench::Interleaved runs;
        const std::size_t typing = runs.Add(Repeated(&Keystroke::Type, keystroke));
        const std::size_t writing = runs.Add(Repeated(&Keystroke::Write, keystroke));
        runs.Run();
        std::printf("%-16s %6zu records %9.1f us %9.1f us %7.3f  (at most 1.20)\n", f.form, records,
                    runs.MedianSeconds(typing) * 1e6 / kKeysPerRound,
                    runs.MedianSeconds(writing) * 1e6 / kKeysPerRound,
                    runs.MedianRatio(typing, writing));
    }
}

}  // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    app::AppState state;
    ui::QtDialogs dialogs;
    ui::MainForm window(state, dialogs);
    if (!window.Start()) {
        return EXIT_FAILURE;
    }
    window.show();
    if (!QTest::qWaitForWindowActive(&window)) {
        return EXIT_FAILURE;
    }
    std::printf("%-31s %12s %12s %7s\n", "keystroke in", "keystroke", "texts alone", "ratio");
    Measure(window, state, 0);

    const stations::StationRecord record =
        stations::BuildRecord({.callsign = "QQ1A",
                               .name = "Name",
                               .place = "Ort",
                               .frequency = {},
                               .remark = {},
                               .date = {}},
                              {.latitude = 48.0, .longitude = 11.0}, "2001.01.01-00:00:00");
    while (state.database.Append(record)) {
    }
    window.findChild<ui::StationListFrame*>()->List1Load();
    Measure(window, state, state.database.Count());
    return EXIT_SUCCESS;
}
