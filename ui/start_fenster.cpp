#include "ui/start_fenster.h"

#include <QHBoxLayout>
#include <QPixmap>
#include <QVBoxLayout>

#include "core/texte.h"
#include "ui/streckenbild.h"

namespace tarvel::ui {

Form3Fenster::Form3Fenster(form3& logik, const dateien& ablage, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern) {
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(0, 0, 0, 12);
    auto* gezeichnet = new Streckenbild;
    gezeichnet->setTitel("Tarvel", "Version " + QString::fromUtf8(programm_version.data(),
                                                                  static_cast<qsizetype>(programm_version.size())));
    auto* foto = new QLabel;
    foto->setAlignment(Qt::AlignCenter);
    aufbau->addWidget(gezeichnet, 1);
    aufbau->addWidget(foto, 1);
    binder().verbinden(logik.Picture1, foto, "Picture1", [&logik, &ablage, foto, gezeichnet] {
        const std::filesystem::path pfad = ablage.pfad(logik.Picture1.datei());
        const QPixmap bild =
            ist_lesbar(pfad, bild_bytes_max) ? QPixmap(QString::fromStdU16String(pfad.u16string())) : QPixmap();
        foto->setPixmap(bild);
        foto->setVisible(!bild.isNull());
        gezeichnet->setVisible(bild.isNull());
    });
    QPushButton* knopf = binder().knopf(logik.Command1, "Command1");
    knopf->setMinimumWidth(120);
    aufbau->addWidget(knopf, 0, Qt::AlignHCenter);
    resize(760, 330);
}

UpdateFenster::UpdateFenster(update_form& logik, Fensterverwaltung& verwaltung) : Fenster(logik, verwaltung, nullptr) {
    auto* aufbau = new QHBoxLayout(this);
    aufbau->addWidget(binder().label(logik.Label1, "Label1"), 0, Qt::AlignCenter);
    resize(380, 90);
}

}  // namespace tarvel::ui
