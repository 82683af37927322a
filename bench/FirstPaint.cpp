// A plugin that Qt loads into a program when QT_QPA_GENERIC_PLUGINS names it: ends the program as
// soon as its first window is painted.

#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QTimer>
#include <QWidget>

namespace {

class EndAfterFirstPaint : public QObject {
    Q_OBJECT

public:
    EndAfterFirstPaint() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* const widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Paint && widget != nullptr && widget->isWindow()) {
            // The children are painted and the pixels sent before the event loop turns.
            QTimer::singleShot(0, this, [] { _exit(0); });
        }
        return false;
    }
};

}  // namespace

class FirstPaintPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "firstpaint.json")

public:
    QObject* create(const QString& /*key*/, const QString& /*parameters*/) override
    {
        return new EndAfterFirstPaint;
    }
};

#include "FirstPaint.moc"
