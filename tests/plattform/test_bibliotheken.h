#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/bibliothek.h"
#include "platform/druckerport.h"

namespace tarvel::test {

/// Vendor libraries on a script.
class test_bibliotheken final : public plattform::bibliothek_dienst {
public:
    using rufe = std::map<std::string, plattform::bibliothek::ruf, std::less<>>;

    std::map<std::string, rufe, std::less<>> da;  ///< library by name, its calls by name
    int geladen = 0;                              ///< how many live at the moment

    template <class Funktion>
    void ruf(const std::string& bibliothek, const std::string& name, Funktion* funktion) {
        da[bibliothek][name] = reinterpret_cast<plattform::bibliothek::ruf>(funktion);
    }

    std::unique_ptr<plattform::bibliothek> laden(std::string_view name) override {
        const auto gefunden = da.find(name);
        return gefunden == da.end() ? nullptr : std::make_unique<geladene>(gefunden->second, geladen);
    }

private:
    class geladene final : public plattform::bibliothek {
    public:
        geladene(rufe alle, int& anzahl) : rufe_(std::move(alle)), anzahl_(anzahl) { ++anzahl_; }
        geladene(const geladene&) = delete;
        geladene& operator=(const geladene&) = delete;
        ~geladene() override { --anzahl_; }

        ruf finden(const char* name) const override {
            const auto gefunden = rufe_.find(name);
            return gefunden == rufe_.end() ? nullptr : gefunden->second;
        }

    private:
        rufe rufe_;
        int& anzahl_;
    };
};

/// A parallel port on a script: the registers that are there, and what was written to them.
class test_druckerport final : public plattform::druckerport {
public:
    std::map<int, std::uint8_t> register_werte;             ///< by address; empty is a machine without the port
    std::vector<std::pair<int, std::uint8_t>> geschrieben;  ///< in its order

    std::optional<std::uint8_t> lesen(int adresse) override {
        const auto wert = register_werte.find(adresse);
        return wert == register_werte.end() ? std::nullopt : std::optional(wert->second);
    }
    bool schreiben(int adresse, std::uint8_t wert) override {
        if (!register_werte.contains(adresse)) {
            return false;
        }
        register_werte[adresse] = wert;
        geschrieben.emplace_back(adresse, wert);
        return true;
    }
};

}  // namespace tarvel::test
