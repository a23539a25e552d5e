#include "platform_qt/qt_dateisystem.h"

#include <QFileInfo>
#include <QString>
#include <system_error>

#include "platform_qt/schreibdatei.h"

namespace tarvel::qt {

bool QtDateisystem::neue_datei(const std::filesystem::path& pfad, std::string_view inhalt) const {
    Schreibdatei datei = Schreibdatei::neu(pfad);
    if (!datei.offen()) {
        return false;
    }
    if (!datei.schreiben(inhalt) || !datei.sichern() || !datei.schliessen()) {
        datei.schliessen();
        std::error_code egal;
        std::filesystem::remove(pfad, egal);
        return false;
    }
    return true;
}

bool QtDateisystem::ist_verweis(const std::filesystem::path& pfad) const {
    const QFileInfo eintrag(QString::fromStdU16String(pfad.u16string()));
    return eintrag.isSymLink() || eintrag.isJunction();
}

}  // namespace tarvel::qt
