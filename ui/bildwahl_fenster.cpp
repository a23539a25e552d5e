#include "ui/bildwahl_fenster.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/ordnerblick.h"
#include "ui/stil.h"

namespace tarvel::ui {
namespace {

constexpr QSize vorschaugroesse(320, 240);

}  // namespace

BildwahlFenster::BildwahlFenster(bildwahl& logik, Fensterverwaltung& verwaltung, QWidget* eltern)
    : Fenster(logik, verwaltung, eltern) {
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(stil::fensterrand);
    auto* oben = new QHBoxLayout;
    oben->addWidget(binder().label(logik.Label_laufwerk, "Label_laufwerk"));
    oben->addWidget(binder().auswahlfeld(logik.laufwerk, "laufwerk"));
    oben->addWidget(binder().label(logik.pfad, "pfad"), 1);
    aufbau->addLayout(oben);

    auto* mitte = new QHBoxLayout;
    mitte->setSpacing(14);
    const auto spalte = [&](bezeichnung& titel, tarvel::liste& liste, const QString& name) {
        auto* paar = new QVBoxLayout;
        paar->addWidget(binder().label(titel, "Label_" + name));
        QListView* zeilen = binder().listenfeld(liste, name);
        zeilen->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);  // a file has the name that it has
        paar->addWidget(zeilen, 1);
        mitte->addLayout(paar, 1);
    };
    spalte(logik.Label_ordner, logik.ordner, "ordner");
    spalte(logik.Label_datei, logik.datei, "datei");
    mitte->addWidget(binder().bildfeld(logik.vorschau, "vorschau", vorschaugroesse, pfad_aus_utf8), 0, Qt::AlignTop);
    aufbau->addLayout(mitte, 1);

    QPushButton* suchen = binder().knopf(logik.Command_suchen, "Command_suchen");
    QPushButton* uebernehmen = binder().hauptknopf(logik.Command1, "Command1");
    QObject::connect(suchen, &QPushButton::clicked, this, [this, &logik] { bild_suchen(logik); });
    QHBoxLayout* fuss = stil::knopfzeile({uebernehmen, binder().knopf(logik.Command2, "Command2")});
    fuss->insertWidget(0, stil::fensterknopf(suchen));
    aufbau->addLayout(fuss);
    resize(860, 480);
}

void BildwahlFenster::bild_suchen(bildwahl& logik) {
    auto* dialog = new QFileDialog(this, windowTitle(), QString::fromStdU16String(logik.ort().u16string()),
                                   "JPEG, GIF (*.jpg *.jpeg *.gif)");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    QObject::connect(dialog, &QFileDialog::fileSelected, this,
                     [&logik](const QString& datei) { logik.zeigen(std::filesystem::path(datei.toStdU16String())); });
    vor_allem_zeigen(*dialog);
}

}  // namespace tarvel::ui
