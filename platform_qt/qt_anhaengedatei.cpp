#include "platform_qt/qt_anhaengedatei.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "platform_qt/bytering.h"
#include "platform_qt/schreibdatei.h"

namespace tarvel::qt {
namespace {

using namespace std::chrono_literals;

constexpr auto blick_abstand = 33ms;  // leaves the disk two thirds of the 100 ms
constexpr auto geduld = 1s;           // with a disk that does not answer

/// What giver and thread share. The thread keeps it alive: should the disk never answer, it outlives the giver's file.
class Schreiber {
public:
    Schreiber(Schreibdatei datei, std::filesystem::path ordner)
        : datei_(std::move(datei)), ordner_(std::move(ordner)) {}

    bool geben(std::string_view bytes) {
        if (gescheitert()) {
            return false;
        }
        if (!ring_.geben(bytes)) {
            gescheitert_ = true;
        }
        return !gescheitert();
    }
    bool gescheitert() const { return gescheitert_.load(std::memory_order_relaxed); }

    bool sichern() {
        std::unique_lock sperre(sperre_);
        eilig_ = true;
        wecken_.notify_one();
        return geschrieben_.wait_for(sperre, geduld, [this] { return fertig_ || gesichert_ == ring_.gegeben(); }) &&
               gesichert_ == ring_.gegeben();
    }
    /// False if the thread still waits for the disk.
    bool beenden() {
        std::unique_lock sperre(sperre_);
        ende_ = true;
        wecken_.notify_one();
        return geschrieben_.wait_for(sperre, geduld, [this] { return fertig_; });
    }

    /// The thread.
    void laufen() {
        ordner_sichern(ordner_);
        std::unique_lock sperre(sperre_);
        while (!fertig_) {
            const bool letztes_mal = ende_;
            eilig_ = false;
            sperre.unlock();
            const bool gut = wegschreiben();
            sperre.lock();
            if (gut) {
                gesichert_ = ring_.genommen();
            } else {
                gescheitert_ = true;
            }
            fertig_ = letztes_mal || !gut;
            geschrieben_.notify_all();
            wecken_.wait_for(sperre, blick_abstand, [this] { return fertig_ || eilig_ || ende_; });
        }
    }

private:
    bool wegschreiben() {
        const auto stuecke = ring_.wartend();
        if (stuecke.front().empty()) {
            return true;
        }
        for (const std::string_view stueck : stuecke) {
            if (!datei_.schreiben(stueck)) {
                return false;
            }
            ring_.nehmen(stueck.size());
        }
        return datei_.sichern() && !datei_.verwaist();
    }

    Schreibdatei datei_;
    const std::filesystem::path ordner_;
    Bytering ring_;
    std::atomic<bool> gescheitert_ = false;

    std::mutex sperre_;  ///< of what follows; nobody holds it while he waits for the disk
    std::condition_variable wecken_;
    std::condition_variable geschrieben_;
    std::size_t gesichert_ = 0;  ///< so many bytes are on the disk; wraps like the ring's counts
    bool eilig_ = false;
    bool ende_ = false;
    bool fertig_ = false;  ///< the thread does nothing more
};

class QtAnhaengedatei final : public plattform::anhaengedatei {
public:
    /// Throws what `std::thread` throws.
    explicit QtAnhaengedatei(std::shared_ptr<Schreiber> schreiber)
        : schreiber_(std::move(schreiber)), faden_([s = schreiber_] { s->laufen(); }) {}
    ~QtAnhaengedatei() override {
        if (schreiber_->beenden()) {
            faden_.join();
        } else {
            faden_.detach();
        }
    }
    bool anhaengen(std::string_view bytes) override { return schreiber_->geben(bytes); }
    bool gescheitert() const override { return schreiber_->gescheitert(); }
    bool sichern() override { return schreiber_->sichern(); }

private:
    std::shared_ptr<Schreiber> schreiber_;
    std::thread faden_;
};

}  // namespace

std::unique_ptr<plattform::anhaengedatei> QtAnhaengeDienst::oeffnen(const std::filesystem::path& pfad,
                                                                    std::optional<std::uintmax_t> laenge) {
    if (!eigenen_ordner_anlegen(pfad.parent_path())) {
        return nullptr;
    }
    Schreibdatei datei = Schreibdatei::weiter(pfad, laenge);
    if (!datei.offen()) {
        return nullptr;
    }
    try {
        return std::make_unique<QtAnhaengedatei>(std::make_shared<Schreiber>(std::move(datei), pfad.parent_path()));
    } catch (const std::system_error&) {  // the system has no thread left
        return nullptr;
    }
}

}  // namespace tarvel::qt
