#include "ui/UserDialogs.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QUrl>

namespace ui {

using namespace Qt::StringLiterals;

namespace {

// Qt's own dialog, not the desktop's: only there does the question about overwriting come after the
// ending is appended, and only there may a name be opened that does not exist yet.
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

QString Title(const QString& title)
{
    return title.isEmpty() ? u"Kompasso"_s : title;
}

}  // namespace

void QtDialogs::Inform(QWidget* parent, const QString& title, const QString& text,
                       const QString& informative)
{
    QMessageBox box(QMessageBox::Information, Title(title), text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(informative);
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
    QFileDialog dialog(parent);
    Prepare(dialog, request);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Chosen(dialog);
}

QString QtDialogs::OpenOrCreateFile(QWidget* parent, const FileRequest& request)
{
    QFileDialog dialog(parent);
    Prepare(dialog, request);
    dialog.setFileMode(QFileDialog::AnyFile);
    return Chosen(dialog);
}

QString QtDialogs::SaveFile(QWidget* parent, const FileRequest& request, const QString& suffix)
{
    QFileDialog dialog(parent);
    Prepare(dialog, request);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(suffix);
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
