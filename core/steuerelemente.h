#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The controls of a window as values: what a window's logic sets and reads, and what its drawing shows.
///
/// A setter that changes nothing notifies nobody, so the race tick may write every control each millisecond. What the
/// operator does arrives through `klicken`, `eingeben`, `umschalten` and `markieren`; these do nothing on a control
/// that is hidden or disabled, whoever calls them.
namespace tarvel {

/// 24-bit colour, lowest byte red.
using farbe = std::uint32_t;

namespace farben {
inline constexpr farbe rot = 0x0000FF;
}  // namespace farben

/// Told of each change of its control, from within the setter: it may only take a note.
class steuer_beobachter {
public:
    virtual ~steuer_beobachter() = default;
    virtual void geaendert() = 0;

private:
    friend class steuerelement;
    steuer_beobachter* naechster_ = nullptr;  ///< of the same control
};

class steuerelement {
public:
    steuerelement() = default;
    steuerelement(const steuerelement&) = delete;
    steuerelement& operator=(const steuerelement&) = delete;
    virtual ~steuerelement() = default;

    /// Several windows may show the same control. The one that came last is told first.
    void beobachten(steuer_beobachter& wer) { wer.naechster_ = std::exchange(beobachter_, &wer); }
    void nicht_mehr_beobachten(const steuer_beobachter& wer);

    const std::string& text() const { return text_; }
    void text(std::string_view neu);
    /// Drawn in front of `text` until that is set anew: the minutes of a lap, which its short form leaves out.
    const std::string& davor() const { return davor_; }
    void text(std::string_view neu, std::string_view davor);
    bool sichtbar() const { return sichtbar_; }
    void sichtbar(bool neu) { setzen(sichtbar_, neu); }
    bool aktiviert() const { return aktiviert_; }
    void aktiviert(bool neu) { setzen(aktiviert_, neu); }
    bool bedienbar() const { return sichtbar_ && aktiviert_; }

    /// Shown while the pointer rests on the control.
    const std::string& tipp() const { return tipp_; }
    void tipp(std::string_view neu);
    /// What a screen reader calls the control where its text is not its name.
    const std::string& ansage() const { return ansage_; }
    void ansage(std::string_view neu);

    /// Colours are empty where the drawing's own palette holds.
    std::optional<farbe> schriftfarbe() const { return schriftfarbe_; }
    void schriftfarbe(std::optional<farbe> neu) { setzen(schriftfarbe_, neu); }
    std::optional<farbe> hintergrund() const { return hintergrund_; }
    void hintergrund(std::optional<farbe> neu) { setzen(hintergrund_, neu); }

    /// Font size in the units of the window's design size; 0 leaves it to the drawing.
    double schriftgroesse() const { return schriftgroesse_; }
    void schriftgroesse(double neu) { setzen(schriftgroesse_, neu); }

    /// Asks for the input focus; the drawing takes the wish once.
    void fokus_setzen();
    bool fokuswunsch_abholen();

protected:
    template <class T>
    void setzen(T& feld, const T& neu) {
        if (feld == neu) {
            return;
        }
        feld = neu;
        melden();
    }
    void text_setzen(std::string& ziel, std::string_view neu);
    void melden() const {
        for (steuer_beobachter* einer = beobachter_; einer != nullptr; einer = einer->naechster_) {
            einer->geaendert();
        }
    }

private:
    steuer_beobachter* beobachter_ = nullptr;
    std::string text_;
    std::string davor_;
    std::string tipp_;
    std::string ansage_;
    std::optional<farbe> schriftfarbe_;
    std::optional<farbe> hintergrund_;
    double schriftgroesse_ = 0;
    bool sichtbar_ = true;
    bool aktiviert_ = true;
    bool fokuswunsch_ = false;
};

/// A label.
class bezeichnung : public steuerelement {
public:
    /// Left edge in design units where a view places the label itself; 0 leaves it to the drawing.
    double links() const { return links_; }
    void links(double neu) { setzen(links_, neu); }

private:
    double links_ = 0;
};

/// A frame around other controls, with `text` as its title.
class rahmen : public steuerelement {
public:
    /// Row of the window that the frame stands in, from 0, where the logic orders the frames.
    int reihe() const { return reihe_; }
    void reihe(int neu) { setzen(reihe_, neu); }

private:
    int reihe_ = 0;
};

/// A command: a button.
class befehl : public steuerelement {
public:
    std::function<void()> bei_klick;
    void klicken();

    /// What it asks back before it is given: shown over its caption, larger. Empty while it asks nothing.
    const std::string& frage() const { return frage_; }
    void frage(std::string_view neu) { text_setzen(frage_, neu); }

private:
    std::string frage_;
};

/// A control that the operator types into.
class eingabe_element : public steuerelement {
public:
    std::function<void()> bei_aenderung;
    /// What is too long is cut.
    virtual void eingeben(std::string_view neu);

    /// Most characters that the operator may type; 0 is no limit.
    int laenge_max() const { return laenge_max_; }
    void laenge_max(int neu) { setzen(laenge_max_, neu); }

private:
    int laenge_max_ = 0;
};

/// A text field.
class feld : public eingabe_element {};

/// A tick box.
class haken : public steuerelement {
public:
    std::function<void()> bei_aenderung;
    bool gesetzt() const { return gesetzt_; }
    void gesetzt(bool neu) { setzen(gesetzt_, neu); }
    void umschalten();

private:
    bool gesetzt_ = false;
};

/// A choice from a list. Its text is one of the entries, or free text if `frei` is set.
class auswahl : public eingabe_element {
public:
    const std::vector<std::string>& eintraege() const { return eintraege_; }
    void eintraege(const std::vector<std::string>& neu) { setzen(eintraege_, neu); }
    /// Said behind the entries of the open choice, in their order; no part of the text that is chosen.
    const std::vector<std::string>& zusaetze() const { return zusaetze_; }
    void zusaetze(const std::vector<std::string>& neu) { setzen(zusaetze_, neu); }
    bool frei() const { return frei_; }
    void frei(bool neu) { setzen(frei_, neu); }
    /// Of a free choice, what is offered while something is typed; set before the choice is drawn. What is typed stays
    /// as it is until the operator takes one of them, or the one that is left.
    std::function<std::vector<std::string>(const std::string& getippt)> vorschlagen;
    void eingeben(std::string_view neu) override;

    /// Chosen entry from 0, also where two entries read the same; -1 for a text that is no entry.
    int platz() const;
    /// A place without an entry chooses nothing.
    void platz(int neu);
    /// The operator chooses the entry.
    void waehlen(int neu);

private:
    std::vector<std::string> eintraege_;
    std::vector<std::string> zusaetze_;
    int platz_ = -1;
    bool frei_ = false;
};

/// A list of text rows, indexed from 0, with at most one selected row.
class liste : public steuerelement {
public:
    const std::vector<std::string>& zeilen() const { return zeilen_; }
    /// All at once; nothing happens if they are the same. `gezeigt` has whole what the rows themselves hold cut.
    void zeilen(std::vector<std::string> neu, std::vector<std::string> gezeigt = {});
    /// What is drawn for the row, counted from 0.
    const std::string& gezeigt(std::size_t zeile) const {
        return zeile < gezeigt_.size() ? gezeigt_[zeile] : zeilen_[zeile];
    }
    /// `gezeigt` is drawn in its place, if there is one.
    void hinzufuegen(std::string_view zeile, std::string_view gezeigt = {});
    void leeren();
    void letzte_entfernen();
    /// Makes room, so that rows up to this number are added without an allocation.
    void vormerken(std::size_t anzahl) {
        zeilen_.reserve(anzahl);
        gezeigt_.reserve(anzahl);
    }

    /// Selected row, -1 for none. A row that does not exist selects the nearest one.
    int markiert() const { return markiert_; }
    void markieren(int zeile);

    /// The operator selects a row, or means it with a double click.
    std::function<void()> bei_auswahl;
    std::function<void()> bei_doppelklick;
    void auswaehlen(int zeile);
    void doppelklicken(int zeile);

    /// Changes with every change other than an added row, so that a drawing can tell the two apart.
    unsigned stand() const { return stand_; }

private:
    std::vector<std::string> zeilen_;
    std::vector<std::string> gezeigt_;  ///< of the first rows, the others show themselves
    int markiert_ = -1;
    unsigned stand_ = 0;
};

/// A picture: the name of its file below the program folder, empty for none.
class bild : public steuerelement {
public:
    const std::string& datei() const { return datei_; }
    void datei(std::string_view neu) { text_setzen(datei_, neu); }
    /// File that is shown where `datei` cannot be.
    const std::string& ersatz() const { return ersatz_; }
    void ersatz(std::string_view neu) { text_setzen(ersatz_, neu); }
    /// The same file holds another picture now.
    void neu_laden() { setzen(auflage_, auflage_ + 1); }
    unsigned auflage() const { return auflage_; }

private:
    std::string datei_;
    std::string ersatz_;
    unsigned auflage_ = 0;
};

/// A colour that the operator chooses.
class farbfeld : public steuerelement {
public:
    std::function<void()> bei_aenderung;
    farbe wert() const { return wert_; }
    void wert(farbe neu) { setzen(wert_, neu); }
    void waehlen(farbe neu);

private:
    farbe wert_ = 0;
};

/// A drawn shape.
class form : public steuerelement {
public:
    std::optional<farbe> randfarbe() const { return randfarbe_; }
    void randfarbe(std::optional<farbe> neu) { setzen(randfarbe_, neu); }
    /// Of a bar, in the unit of its full height.
    double hoehe() const { return hoehe_; }
    void hoehe(double neu) { setzen(hoehe_, neu); }

private:
    std::optional<farbe> randfarbe_;
    double hoehe_ = 0;
};

}  // namespace tarvel
