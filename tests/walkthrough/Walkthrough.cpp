// Drives the running program as a user would and leaves what it sees: a picture of the main window
// and the text of its result block, in the folder that KOMPASSO_WALKTHROUGH_DIR names.
//
// A plugin, so that the program itself knows nothing of it.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGenericPlugin>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

// Mouse and keys go in where those of the window system do.
void Type(QWidget& window, const char* fieldName, const QString& text)
{
    auto* const field = window.findChild<QLineEdit*>(QLatin1StringView(fieldName));
    if (field == nullptr) {
        qFatal("no field %s", fieldName);
    }
    QWindow* const handle = window.windowHandle();
    QTest::mouseClick(handle, Qt::LeftButton, {}, field->mapTo(&window, field->rect().center()));
    for (const QChar c : text) {
        QTest::keyClick(handle, c.toLatin1());
    }
}

QString TextOf(const QWidget& window, const char* labelName)
{
    const auto* const label = window.findChild<QLabel*>(QLatin1StringView(labelName));
    return label == nullptr ? QString() : label->text();
}

bool Save(const QString& name, const QByteArray& bytes)
{
    QFile file(QDir(qEnvironmentVariable("KOMPASSO_WALKTHROUGH_DIR")).filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

void Walk()
{
    QWidget* window = nullptr;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == u"MainForm"_s) {
            window = widget;
        }
    }
    if (window == nullptr || !QTest::qWaitForWindowExposed(window)) {
        qFatal("the main window did not appear");
    }
    window->activateWindow();  // the virtual screen has no window manager that would do it
    if (!QTest::qWaitForWindowActive(window)) {
        qFatal("the main window did not get the focus");
    }
    Type(*window, "Text1_1", u"JN58TH"_s);
    QTest::qWait(200);  // everything painted

    const QStringList lines = {
        TextOf(*window, "Label3"),
        TextOf(*window, "Label10_0") + u' ' + TextOf(*window, "Label4_0"),
        TextOf(*window, "Label10_1") + u' ' + TextOf(*window, "Label4_1"),
    };
    const QPixmap picture = window->screen()->grabWindow(window->winId());
    const QString pictureName =
        QDir(qEnvironmentVariable("KOMPASSO_WALKTHROUGH_DIR")).filePath(u"kompasso.png"_s);
    if (!picture.save(pictureName)
        || !Save(u"ergebnis.txt"_s, (lines.join(u'\n') + u'\n').toUtf8())) {
        qFatal("cannot write the picture and the text");
    }
    window->close();
}

}  // namespace

class WalkthroughPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "walkthrough.json")

public:
    // The window does not exist yet; the first turn of the event loop finds it.
    QObject* create(const QString& /*key*/, const QString& /*parameters*/) override
    {
        auto* const starter = new QObject;
        QTimer::singleShot(0, starter, Walk);
        return starter;
    }
};

#include "Walkthrough.moc"
