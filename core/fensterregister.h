#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace tarvel {

enum class anzeige_art {
    frei,
    modal  ///< modal for the operator: other windows take no input meanwhile. The code goes on at once.
};

/// The drawing side of the register.
class fensteranzeige {
public:
    virtual ~fensteranzeige() = default;
    /// Shows the window, or brings it to the front if it is on the screen.
    virtual void zeigen(const std::string& name, anzeige_art art) = 0;
    virtual void verbergen(const std::string& name) = 0;
};

/// All windows of the program by name. A window's logic opens and closes other windows through it, and so need not know
/// the parts above itself. Windows that are not entered are not there: showing one does nothing.
class fensterregister {
public:
    /// Load and unload handler of one window's logic; both may be empty.
    struct eintrag {
        std::function<void()> laden;
        std::function<void()> entladen;
    };

    void anmelden(std::string_view name, eintrag verhalten);
    bool kennt(std::string_view name) const;
    void anzeigen_auf(fensteranzeige* anzeige) { anzeige_ = anzeige; }

    /// Loads the window without showing it, if it is not loaded.
    void laden(std::string_view name);
    void zeigen(std::string_view name, anzeige_art art = anzeige_art::frei);
    /// Takes the window off the screen; it stays loaded.
    void verbergen(std::string_view name);
    void entladen(std::string_view name);
    /// The handlers alone: a window that is on the screen begins anew without leaving it.
    void neu_laden(std::string_view name);
    /// Loaded and on the screen.
    bool ist_offen(std::string_view name) const;

private:
    struct fenster {
        eintrag verhalten;
        bool geladen = false;
        bool offen = false;
    };

    std::map<std::string, fenster, std::less<>> fenster_;
    fensteranzeige* anzeige_ = nullptr;
};

}  // namespace tarvel
