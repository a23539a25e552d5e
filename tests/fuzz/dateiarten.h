#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/dateien.h"
#include "hardware/messquelle.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel::test {

/// What all readings share and none starts anew: a program, and folders in memory where the system has such.
struct werkbank {
    werkbank();
    /// Lays the bytes of this reading into a file of the program folder. They stay there until the next reading.
    void legen(const std::string& name, const std::string& bytes);

    testprogramm t;
    dateien eingang{t.maschine.ordner()};
    dateien ausgang{t.maschine.ordner() / "ausgang"};  ///< where readings write: what they were given stays as it was
};

/// A device is heard alone: nothing waits from the one before, and it is closed behind, also if something is wrong.
class geraeteprobe {
public:
    explicit geraeteprobe(werkbank& bank);
    geraeteprobe(const geraeteprobe&) = delete;
    geraeteprobe& operator=(const geraeteprobe&) = delete;
    ~geraeteprobe();

private:
    programm& p_;
};

/// Ends the reading with what is wrong.
void fordern(bool erfuellt, const char* was);

/// The longest line that a file of the program has, in characters.
inline constexpr std::size_t zeile_max = 4000;
bool ist_eine_zeile(const std::string& text);

/// Bytes in pieces that they say the length of themselves.
void in_stuecken(std::string_view bytes, const std::function<void(std::string_view)>& hoeren);
/// What the devices have delivered is taken, and looked at first. False if it is nothing.
bool ereignisse_abholen(programm& p, const std::function<void(ereignis_art, const ereignis_zeile&)>& pruefen);
/// The same for a device of contacts, which is asked now: inputs only, with the stamp of this moment.
bool kontakte_abfragen(werkbank& bank, messquelle& geraet);

/// Lets the program read a file of these bytes and holds what it made of it against what must be true of any file.
/// Tells whether the file was accepted; throws when something is wrong.
using leseversuch = bool (*)(werkbank&, const std::string& bytes);

/// One kind of file that the program reads.
struct dateiart {
    std::vector<std::string> gute;  ///< bytes of files that are accepted, as seeds of all others
    leseversuch lesen;
    unsigned dauert = 1;  ///< a step takes so many times as long as with the others
};

/// All kinds by their names. A new one gets its row here, and its name in the CMake list of the targets.
std::map<std::string, dateiart> dateiarten(werkbank& bank);

bool namensliste_lesen(werkbank& bank, const std::string& bytes);
bool trennzeichen_lesen(werkbank& bank, const std::string& bytes);
bool werbezeile_lesen(werkbank& bank, const std::string& bytes);
bool startdatei_lesen(werkbank& bank, const std::string& bytes);
bool tasten_lesen(werkbank& bank, const std::string& bytes);
bool einstellungen_lesen(werkbank& bank, const std::string& bytes);
bool wettkampfdatei_lesen(werkbank& bank, const std::string& bytes);
bool wettkampfstand_lesen(werkbank& bank, const std::string& bytes);
/// Lines of such files, of this version and of older ones.
std::vector<std::vector<std::string>> volle_wettkampfstaende(const texte& txt);
/// Everything that the viewer does with a result file.
bool tabelle_betrachten(werkbank& bank, const std::string& bytes);
bool tagesrennen_lesen(werkbank& bank, const std::string& bytes);
bool befehlsdatei_lesen(werkbank& bank, const std::string& bytes);
bool at2560_hoeren(werkbank& bank, const std::string& bytes);
bool tk_datei_lesen(werkbank& bank, const std::string& bytes);
bool timekeeper_hoeren(werkbank& bank, const std::string& bytes);
dateiart iow_datei();
dateiart iow_berichte();
bool lpt_hoeren(werkbank& bank, const std::string& bytes);
dateiart rennprotokoll_datei();
std::map<std::string, dateiart> gedaechtnisdateien();
bool race_control_hoeren(werkbank& bank, const std::string& bytes);
bool modul4x4_hoeren(werkbank& bank, const std::string& bytes);

}  // namespace tarvel::test
