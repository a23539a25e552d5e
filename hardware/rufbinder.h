#pragma once

#include <string>

#include "platform/bibliothek.h"

namespace tarvel {

/// Binds the calls of a vendor's library by their published names, and knows the first that it lacks.
class rufbinder {
public:
    explicit rufbinder(const plattform::bibliothek& bibliothek) : bibliothek_(bibliothek) {}

    template <class Funktion>
    void operator()(Funktion*& ruf, const char* name) {
        ruf = bibliothek_.finden_als<Funktion>(name);
        if (ruf == nullptr && fehlt_.empty()) {
            fehlt_ = name;
        }
    }
    /// Empty if all are there.
    const std::string& fehlt() const { return fehlt_; }

private:
    const plattform::bibliothek& bibliothek_;
    std::string fehlt_;
};

}  // namespace tarvel
