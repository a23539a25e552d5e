#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/simulator/geraet.h"
#include "tools/simulator/lauf.h"

namespace tarvel::simulator {

/// The options of a simulator and how they are read.
class kommandozeile {
public:
    struct option {
        std::string name;                             ///< with its hyphens
        std::string wert;                             ///< what stands behind it, empty if nothing does
        std::string hilfe;                            ///< German
        std::function<bool(std::string_view)> lesen;  ///< false if the value cannot be used
    };

    /// `beschreibung` heads the help, a line or two.
    explicit kommandozeile(std::string beschreibung) : beschreibung_(std::move(beschreibung)) {}

    void zahl(const std::string& name, const std::string& wert, std::int64_t von, std::int64_t bis,
              const std::string& hilfe, std::function<void(std::int64_t)> setzen);
    /// Numbers with commas between them.
    void liste(const std::string& name, const std::string& wert, std::int64_t von, std::int64_t bis,
               const std::string& hilfe, std::function<void(const std::vector<std::int64_t>&)> setzen);
    void text(const std::string& name, const std::string& wert, const std::string& hilfe, std::string& ziel);
    void haken(const std::string& name, const std::string& hilfe, bool& ziel);

    /// False after an error, which has been told.
    bool lesen(int argc, const char* const* argv);
    bool hilfe_gewuenscht() const { return hilfe_; }
    void hilfe_zeigen() const;

private:
    const option* suchen(std::string_view name) const;

    std::string beschreibung_;
    std::vector<option> optionen_;
    bool hilfe_ = false;
};

/// The cars as the command line tells them; lanes count from 1.
struct flotte {
    int spuren = 4;
    std::vector<std::int64_t> rundenzeiten{8000};  ///< ms; lanes without an own value are a little slower each
    std::vector<std::int64_t> fruehstarter;
    wagen_einstellung je_wagen;
    int sektoren = 2;

    std::vector<wagen_einstellung> wagen() const;
};

/// The options that both simulators have.
void gemeinsame_optionen(kommandozeile& zeile, int spuren_max, flotte& wagen, rennen_einstellung& rennen,
                         lauf_einstellung& lauf);

}  // namespace tarvel::simulator
