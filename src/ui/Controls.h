// Naming of controls: every control carries the name it has in the program as its object name, so
// that tests and assistive programs find it.

#pragma once

#include <QFont>
#include <QLabel>
#include <QString>

namespace ui {

// Names `object` and hands it on.
template <typename Object>
Object* Named(Object* object, const QString& name)
{
    object->setObjectName(name);
    return object;
}

// Makes the text of a label bold, `size` times as large as before.
inline QLabel* Bold(QLabel* label, qreal size = 1.0)
{
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * size);
    label->setFont(font);
    return label;
}

// Name of element `index` of a control array: "Text12_1".
inline QString ElementName(const char* array, int index)
{
    return QLatin1StringView(array) + QLatin1Char('_') + QString::number(index);
}

}  // namespace ui
