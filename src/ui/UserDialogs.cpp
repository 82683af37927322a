#include "ui/UserDialogs.h"

#include <algorithm>
#include <utility>

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QUrl>

#include "ui/FileNameText.h"

namespace ui {

using namespace Qt::StringLiterals;

namespace {

// Qt's own dialog, not the desktop's: only there can the ending be appended before the question
// about overwriting, and only there may a name be opened that does not exist yet.
void Prepare(QFileDialog& dialog, const FileRequest& request)
{
    dialog.setObjectName(u"CommonDialog1"_s);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(QtNameFilters(request.filter));
    if (!request.title.isEmpty()) {
        dialog.setWindowTitle(request.title);
    }
    dialog.setDirectory(request.folder.isEmpty() ? QDir::currentPath() : request.folder);
}

QString Chosen(QFileDialog& dialog)
{
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString Open(QWidget* parent, const FileRequest& request, QFileDialog::FileMode mode)
{
    QFileDialog dialog(parent);
    Prepare(dialog, request);
    dialog.setFileMode(mode);
    return Chosen(dialog);
}

QString Title(const QString& title)
{
    return title.isEmpty() ? u"Kompasso"_s : title;
}

// Qt's own default ending leaves out names like ".hidden".
class SaveDialog : public QFileDialog {
public:
    SaveDialog(QWidget* parent, QString ending) : QFileDialog(parent), ending_(std::move(ending)) {}

protected:
    // The ending is in the name before Qt asks about overwriting.
    void accept() override
    {
        const QFileInfo chosen(selectedFiles().value(0));
        const QString file = WithEnding(chosen.filePath(), ending_);
        auto* const field = findChild<QLineEdit*>(u"fileNameEdit"_s);
        if (field != nullptr && !chosen.fileName().isEmpty() && !chosen.isDir()
            && file != chosen.filePath()) {
            const QString folder = directory().absolutePath() + u'/';
            field->setText(file.startsWith(folder) ? file.mid(folder.size()) : file);
        }
        QFileDialog::accept();
    }

private:
    QString ending_;
};

// The width beyond which no message box of Qt grows.
int WidestBox(const QScreen& screen)
{
    constexpr int kSmallScreen = 1024;
    constexpr int kKeptFree = 480;
    constexpr int kWidest = 1000;
    const int width = screen.availableSize().width();
    return width <= kSmallScreen ? width : std::min(width - kKeptFree, kWidest);
}

// A message box wraps its lines at half the screen. Those of a text that brings its own line breaks
// stay whole, as far as a box can be that wide.
void KeepLines(QMessageBox& box)
{
    auto* const label = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
    if (label == nullptr || !box.text().contains(u'\n')) {
        return;
    }
    label->setWordWrap(false);
    const int around = box.layout()->totalMinimumSize().width() - label->minimumSizeHint().width();
    label->setMinimumWidth(std::min(label->sizeHint().width(), WidestBox(*box.screen()) - around));
}

}  // namespace

void QtDialogs::Inform(QWidget* parent, const QString& title, const QString& text,
                       const QString& informative)
{
    QMessageBox box(QMessageBox::Information, Title(title), text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(informative);
    KeepLines(box);
    box.exec();
}

bool QtDialogs::AskOkCancel(QWidget* parent, const QString& title, const QString& text,
                            const QString& informative)
{
    QMessageBox box(QMessageBox::Question, Title(title), text,
                    QMessageBox::Ok | QMessageBox::Cancel, parent);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(informative);
    return box.exec() == QMessageBox::Ok;
}

QString QtDialogs::OpenFile(QWidget* parent, const FileRequest& request)
{
    return Open(parent, request, QFileDialog::ExistingFile);
}

QString QtDialogs::OpenOrCreateFile(QWidget* parent, const FileRequest& request)
{
    return Open(parent, request, QFileDialog::AnyFile);
}

QString QtDialogs::SaveFile(QWidget* parent, const FileRequest& request, const QString& suffix)
{
    SaveDialog dialog(parent, suffix);
    Prepare(dialog, request);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    return Chosen(dialog);
}

bool QtDialogs::OpenDocument(const QString& file)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

QStringList QtNameFilters(const QString& filter)
{
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns;
        for (const QString& pattern : parts[i + 1].split(u';')) {
            patterns << pattern.toLower() << pattern.toUpper();
        }
        patterns.removeDuplicates();
        // "*.*" would leave out names without a point.
        patterns.replaceInStrings(u"*.*"_s, u"*"_s);
        filters << parts[i] + u" ("_s + patterns.join(u' ') + u')';
    }
    return filters;
}

}  // namespace ui
