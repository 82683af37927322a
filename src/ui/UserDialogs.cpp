#include "ui/UserDialogs.h"

#include <QMessageBox>

namespace ui {

void QtDialogs::Inform(QWidget* parent, const QString& title, const QString& text)
{
    QMessageBox box(QMessageBox::Information, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

bool QtDialogs::AskOkCancel(QWidget* parent, const QString& title, const QString& text)
{
    QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Ok | QMessageBox::Cancel,
                    parent);
    box.setTextFormat(Qt::PlainText);
    return box.exec() == QMessageBox::Ok;
}

}  // namespace ui
