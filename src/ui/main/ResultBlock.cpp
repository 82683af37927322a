#include "ui/main/ResultBlock.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "ui/Controls.h"

namespace ui {

using namespace Qt::StringLiterals;

ResultBlock::ResultBlock(QWidget* parent) : QFrame(parent)
{
    setFrameShape(StyledPanel);
    auto* const grid = new QGridLayout(this);
    grid->addWidget(Bold(Named(new QLabel(u"ERGEBNIS"_s, this), u"Label11"_s)), 0, 0, 1, 2);

    constexpr qreal kResultSize = 1.4;  // read from a step away
    Label3 = Bold(Named(new QLabel(this), u"Label3"_s), kResultSize);
    grid->addWidget(Label3, 1, 0, 1, 2);

    const std::array captions = {u"Richtung Station 1:"_s, u"Richtung Station 2:"_s};
    for (int i = 0; i < 2; ++i) {
        const auto element = static_cast<std::size_t>(i);
        Label10[element] = Named(new QLabel(captions[element], this), ElementName("Label10", i));
        Label4[element] = Bold(Named(new QLabel(this), ElementName("Label4", i)), kResultSize);
        // The blanks of "OST   + 0.00 Grad" are part of the text and must not be folded.
        Label4[element]->setTextFormat(Qt::PlainText);
        grid->addWidget(Label10[element], 2 + i, 0);
        grid->addWidget(Label4[element], 2 + i, 1);
    }
    Command5 = Named(new QPushButton(u"Karte"_s, this), u"Command5"_s);
    grid->addWidget(Command5, 4, 0, Qt::AlignLeft);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(5, 1);
}

void ResultBlock::Show(const std::string& distance, const std::string& direction1,
                       const std::string& direction2)
{
    Label3->setText(QString::fromStdString(distance));
    Label4[0]->setText(QString::fromStdString(direction1));
    Label4[1]->setText(QString::fromStdString(direction2));
}

}  // namespace ui
