#include "ui/main/MessageBar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

#include "ui/Controls.h"

namespace ui {

using namespace Qt::StringLiterals;

MessageBar::MessageBar(QWidget* parent) : QFrame(parent)
{
    setObjectName(u"MessageBar"_s);
    setFrameShape(QFrame::StyledPanel);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);

    Message = Named(new QLabel(this), u"Message"_s);
    Message->setTextFormat(Qt::PlainText);
    Message->setForegroundRole(QPalette::ToolTipText);
    Message->setSizePolicy(QSizePolicy::Ignored,
                           QSizePolicy::Fixed);  // it gives way, not the window
    MessageCount = Named(new QLabel(this), u"MessageCount"_s);
    MessageCount->setForegroundRole(QPalette::ToolTipText);
    CloseButton = Named(new QToolButton(this), u"CloseMessage"_s);
    CloseButton->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    CloseButton->setAutoRaise(true);
    CloseButton->setFocusPolicy(Qt::NoFocus);
    CloseButton->setToolTip(u"Meldung schließen"_s);
    CloseButton->setAccessibleName(u"Meldung schließen"_s);
    connect(CloseButton, &QToolButton::clicked, this, &MessageBar::CloseMessage);

    auto* const line = new QHBoxLayout(this);
    constexpr int kMargin = 3;
    line->setContentsMargins(2 * kMargin, kMargin, kMargin, kMargin);
    line->addWidget(Message, 1);
    line->addWidget(MessageCount);
    line->addWidget(CloseButton);
    hide();
}

void MessageBar::Tell(const QString& message)
{
    messages_.append(message);
    ShowFirst();
}

void MessageBar::CloseMessage()
{
    if (!messages_.isEmpty()) {
        messages_.removeFirst();
    }
    ShowFirst();
}

void MessageBar::ShowFirst()
{
    const QString first = messages_.value(0);
    const qsizetype others = messages_.size() - 1;
    Message->setToolTip(first);
    Message->setAccessibleName(first);
    MessageCount->setText(others > 0 ? u"und %1 weitere"_s.arg(others) : QString());
    MessageCount->setVisible(others > 0);
    setVisible(!messages_.isEmpty());
    layout()->activate();
    Elide();
}

void MessageBar::Elide()
{
    Message->setText(
        Message->fontMetrics().elidedText(messages_.value(0), Qt::ElideMiddle, Message->width()));
}

void MessageBar::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    layout()->activate();
    Elide();
}

void MessageBar::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        Elide();
    }
}

}  // namespace ui
