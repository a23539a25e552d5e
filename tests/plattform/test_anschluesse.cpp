#include "tests/plattform/test_anschluesse.h"

namespace tarvel::test {

class test_port final : public plattform::serienport {
public:
    explicit test_port(test_anschluesse& dienst) : dienst_(dienst) {}
    test_port(const test_port&) = delete;
    test_port& operator=(const test_port&) = delete;
    ~test_port() override { schliessen(); }

    bool oeffnen(int nummer, std::string_view werte) override {
        schliessen();
        constexpr int belegt = 2;
        dienst_.fehler_ = dienst_.offen(nummer) ? belegt : 0;
        if (!dienst_.da.contains(nummer) || dienst_.offen(nummer)) {
            return false;
        }
        nummer_ = nummer;
        dienst_.werte[nummer] = werte;
        dienst_.offene_[nummer] = this;
        return true;
    }
    void schliessen() override {
        dienst_.offene_.erase(nummer_);
        nummer_ = 0;
    }
    bool offen() const override { return nummer_ != 0; }
    bool schreiben(std::string_view bytes) override {
        if (!offen()) {
            return false;
        }
        dienst_.geschrieben[nummer_] += bytes;
        if (dienst_.geraet) {
            dienst_.geraet(nummer_, bytes);
        }
        return true;
    }

private:
    test_anschluesse& dienst_;
    int nummer_ = 0;
};

std::unique_ptr<plattform::serienport> test_anschluesse::erzeugen() {
    return std::make_unique<test_port>(*this);
}

void test_anschluesse::senden(int nummer, std::string_view bytes, zeit_ms stempel) {
    const auto port = offene_.find(nummer);
    if (port != offene_.end() && port->second->bei_empfang) {
        port->second->bei_empfang(bytes, stempel);
    }
}

void test_anschluesse::ereignis(int nummer, int ereignis) {
    const auto port = offene_.find(nummer);
    if (port != offene_.end() && port->second->bei_ereignis) {
        port->second->bei_ereignis(ereignis);
    }
}

plattform::portangaben test_anschluesse::angaben(int nummer) const {
    const auto ort = bekannt.find(nummer);
    return ort == bekannt.end() ? plattform::portangaben{} : ort->second;
}

void test_anschluesse::abziehen(int nummer) {
    da.erase(nummer);
    const auto port = offene_.find(nummer);
    if (port == offene_.end()) {
        return;
    }
    test_port& verloren = *port->second;
    verloren.schliessen();
    if (verloren.bei_verlust) {
        verloren.bei_verlust();
    }
}

}  // namespace tarvel::test
