#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/mitschrift.h"
#include "race/rennen.h"
#include "race/rennhergang.h"

namespace tarvel {

/// Reads along in the log of the race that runs. Lines are put by as they come, and read when somebody looks.
class protokollmithoerer final : private protokollsenke {
public:
    /// The race outlives this; who keeps its log may go before.
    explicit protokollmithoerer(rennen& r) : r_(r) {}
    protokollmithoerer(const protokollmithoerer&) = delete;
    protokollmithoerer& operator=(const protokollmithoerer&) = delete;
    ~protokollmithoerer() override { aufhoeren(); }

    /// From what there is of the log so far.
    void beginnen();
    void aufhoeren();
    /// Reads what has come since the last look. False if nothing has happened.
    bool nachlesen();
    /// Null before the beginning and behind the end.
    const hergangsmitleser* hergang() const { return hergang_.get(); }
    /// The log as far as it is read.
    const std::string& inhalt() const { return inhalt_; }

private:
    void anhaengen(std::string_view zeile) override;
    void von_vorn_lesen();

    rennen& r_;
    std::unique_ptr<hergangsmitleser> hergang_;
    std::string inhalt_;
    std::string neu_;       ///< lines that have come since the last look
    bool zu_viel_ = false;  ///< more than there was room for, or another log
};

}  // namespace tarvel
