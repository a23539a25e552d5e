// The race director of a race that is killed again and again: a plugin that Qt loads into the program itself
// (QT_QPA_GENERIC_PLUGINS=ausfallbediener) and that presses what he would press, by the names of the buttons. So the
// program is the one that clubs run, to the last byte.

#include <QAbstractButton>
#include <QApplication>
#include <QGenericPlugin>
#include <QMessageBox>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cstdio>

namespace {

void sagen(const QString& text) {
    std::printf("Bediener: %s\n", text.simplified().toUtf8().constData());
    std::fflush(stdout);
}

bool zu_sehen(const QWidget* widget) {
    return widget->isVisible() && widget->isEnabled();
}

QAbstractButton* knopf(const char* name) {
    const QWidgetList alle = QApplication::allWidgets();
    const auto gefunden = std::find_if(alle.begin(), alle.end(), [name](const QWidget* w) {
        return w->objectName() == name && zu_sehen(w) && qobject_cast<const QAbstractButton*>(w) != nullptr;
    });
    return gefunden == alle.end() ? nullptr : qobject_cast<QAbstractButton*>(*gefunden);
}

bool im_rennen() {
    const QWidgetList alle = QApplication::topLevelWidgets();
    return std::any_of(alle.begin(), alle.end(),
                       [](const QWidget* w) { return w->objectName() == "bahn1" && w->isVisible(); });
}

class Bediener : public QObject {
public:
    Bediener() {
        QObject::connect(&blick_, &QTimer::timeout, this, [this] { schauen(); });
        blick_.start(100);
    }

private:
    /// The one button that comes next, of all that could be pressed.
    void schauen() {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            beantworten(*box);
            return;
        }
        struct griff {
            const char* name;
            int geduld;  ///< looks before it is pressed (again)
        };
        static constexpr std::array<griff, 6> griffe{{{"rundenspeichern.Command1", 3},
                                                      {"auswertung.Command4", 3},
                                                      {"k_ampel.Command1", 3},
                                                      {"bahn1.Command3", 20},
                                                      {"bahn1.Command1", 5},
                                                      {"Form1.Command1", 10}}};
        for (const griff& g : griffe) {
            QAbstractButton* b = knopf(g.name);
            if (b == nullptr || (b->objectName() == "bahn1.Command3" && b->text() != "Weiter")) {
                continue;
            }
            const bool wartet = (gespeichert_ && b->objectName() == "auswertung.Command4") ||
                                (im_rennen() && b->objectName() == "Form1.Command1");
            if (wartet) {
                return;
            }
            druecken(*b, g.geduld);
            return;
        }
    }

    void druecken(QAbstractButton& b, int geduld) {
        seit_ = b.objectName() == zuletzt_ ? seit_ + 1 : 1;
        zuletzt_ = b.objectName();
        if (seit_ < geduld) {
            return;
        }
        seit_ = 0;
        sagen(zuletzt_);
        gespeichert_ = gespeichert_ || zuletzt_ == "rundenspeichern.Command1";
        QMetaObject::invokeMethod(&b, "click", Qt::QueuedConnection);
        if (gespeichert_) {
            QTimer::singleShot(1000, this, [] { sagen("gespeichert"); });
        }
    }

    void beantworten(QMessageBox& box) {
        sagen(box.objectName() + ": " + box.text());
        const QList<QAbstractButton*> knoepfe = box.buttons();
        const auto ja = std::find_if(knoepfe.begin(), knoepfe.end(),
                                     [](const QAbstractButton* b) { return b->text().remove('&') == "Ja"; });
        QAbstractButton* welcher = ja == knoepfe.end() ? knoepfe.first() : *ja;
        QMetaObject::invokeMethod(welcher, "click", Qt::QueuedConnection);
    }

    QTimer blick_{this};
    QString zuletzt_;
    int seit_ = 0;
    bool gespeichert_ = false;
};

}  // namespace

class Ausfallbediener : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "bediener.json")
public:
    QObject* create(const QString& /*name*/, const QString& /*angaben*/) override { return new Bediener; }
};

#include "bediener.moc"
