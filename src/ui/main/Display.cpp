#include "ui/main/Display.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/Controls.h"

namespace ui {

using namespace Qt::StringLiterals;

Display::Display(QWidget* parent) : QWidget(parent, Qt::Tool)
{
    setObjectName(u"Display"_s);
    setWindowTitle(u"Kompasso"_s);
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* const column = new QVBoxLayout(this);
    Label1 = Named(new QLabel(this), u"Label1"_s);
    Label1->setTextFormat(Qt::PlainText);
    Label1->setAlignment(Qt::AlignCenter);
    constexpr int kMargin = 12;
    Label1->setMargin(kMargin);
    Command1 = Named(new QPushButton(u"schliessen"_s, this), u"Command1"_s);
    column->addWidget(Label1, 1);
    column->addWidget(Command1, 0, Qt::AlignCenter);
    Timer1 = Named(new QTimer(this), u"Timer1"_s);
    constexpr int kTick = 10;  // ms
    Timer1->setInterval(kTick);
    connect(Timer1, &QTimer::timeout, this, &Display::Tick);
    connect(Command1, &QPushButton::clicked, this, &QWidget::hide);
}

void Display::ShowMessage(const QString& message)
{
    Label1->setText(message);
    ticks_ = 0;
    Timer1->start();
    adjustSize();
    if (parentWidget() != nullptr) {
        const QRect owner = parentWidget()->window()->frameGeometry();
        move(owner.center() - rect().center());
    }
    show();
}

void Display::Tick()
{
    constexpr std::int16_t kLastTick = 100;
    constexpr std::int16_t kTickLimit = 32000;
    ++ticks_;
    if (ticks_ == kLastTick) {
        hide();
        Timer1->stop();  // nothing is left to do until the next message
    }
    // For whoever lets the timer run on: never back to a count from which the window would hide
    // itself a second time.
    if (ticks_ > kTickLimit) {
        ticks_ = kLastTick;
    }
}

}  // namespace ui
