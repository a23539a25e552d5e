#include <QPixmap>
#include <algorithm>
#include <utility>

#include "ui/binder.h"

namespace tarvel::ui {
namespace {

/// Tells `nehmer` the files of the control's picture, and of the one that stands in for it, when they are others than
/// before.
auto bild_verfolgen(bild& element, std::function<std::filesystem::path(const std::string&)> pfad,
                    std::function<void(const Bildleser::Dateien&)> nehmer) {
    return [&element, pfad = std::move(pfad), nehmer = std::move(nehmer), auflage = 0U,
            datei = std::string("\n")]() mutable {
        if (datei == element.datei() && auflage == element.auflage()) {
            return;
        }
        datei = element.datei();
        auflage = element.auflage();
        Bildleser::Dateien dateien;
        for (const std::string& name : {element.datei(), element.ersatz()}) {
            if (!name.empty()) {
                dateien.push_back(pfad(name));
            }
        }
        nehmer(dateien);
    };
}

}  // namespace

QLabel* Binder::bildfeld(bild& element, const QString& name, QSize groesse,
                         std::function<std::filesystem::path(const std::string&)> pfad) {
    auto* widget = new QLabel(eltern_);
    widget->setFixedSize(groesse);
    widget->setAlignment(Qt::AlignCenter);
    const auto zeigen = [widget, groesse](const QImage& inhalt) {
        const double dichte = widget->devicePixelRatioF();
        QPixmap passend;
        if (!inhalt.isNull()) {
            passend =
                QPixmap::fromImage(inhalt.scaled(groesse * dichte, Qt::KeepAspectRatio, Qt::SmoothTransformation));
            passend.setDevicePixelRatio(dichte);
        }
        widget->setPixmap(passend);
    };
    const auto lesen = [this, widget, groesse, zeigen,
                        anfrage = std::make_shared<unsigned>(0)](const Bildleser::Dateien& dateien) {
        const int kante = Bildleser::stufe(std::max(groesse.width(), groesse.height()) * widget->devicePixelRatioF());
        const unsigned nummer = ++*anfrage;
        const bool da = bilder_.lesen(dateien, kante, widget, [zeigen, anfrage, nummer](const QImage& inhalt) {
            if (nummer == *anfrage) {  // else another picture has been chosen meanwhile
                zeigen(inhalt);
            }
        });
        if (!da) {
            zeigen({});
        }
    };
    verbinden(element, widget, name, bild_verfolgen(element, std::move(pfad), lesen));
    return widget;
}

Bildanzeige* Binder::bildanzeige(bild& element, const QString& name,
                                 std::function<std::filesystem::path(const std::string&)> pfad) {
    auto* widget = new Bildanzeige(bilder_, eltern_);
    verbinden(element, widget, name,
              bild_verfolgen(element, std::move(pfad), [widget](const auto& dateien) { widget->setQuelle(dateien); }));
    return widget;
}

}  // namespace tarvel::ui
