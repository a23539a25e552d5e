#pragma once

#include <memory>
#include <string_view>

#include "platform/schnittstelle.h"

namespace tarvel::plattform {

/// A library of a device's vendor, loaded at run time; it stays loaded while this lives.
class bibliothek : public schnittstelle {
public:
    using ruf = void (*)();

    /// By its published call name; null if the library has none such.
    virtual ruf finden(const char* name) const = 0;

    /// The same with its type, which nobody can check.
    template <class Funktion>
    Funktion* finden_als(const char* name) const {
        return reinterpret_cast<Funktion*>(finden(name));
    }
};

class bibliothek_dienst : public schnittstelle {
public:
    /// `name` without prefix and suffix; null if the machine has no such library.
    virtual std::unique_ptr<bibliothek> laden(std::string_view name) = 0;
};

}  // namespace tarvel::plattform
