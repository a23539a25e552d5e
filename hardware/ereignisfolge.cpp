#include "hardware/ereignisfolge.h"

#include <algorithm>
#include <utility>

namespace tarvel {
namespace {

/// The row that it is told in.
ereignis_art zeile_von(ereignis_art nummer) {
    return art::spur_des_fahrertasters(nummer) != 0 ? art::chaostaster : nummer;
}

bool ist_ueberfahrt(ereignis_art nummer) {
    return std::find(art::rundenzaehlung.begin(), art::rundenzaehlung.end(), nummer) != art::rundenzaehlung.end() ||
           (nummer >= erste_zwischenzeit && nummer < erste_zwischenzeit + sektorsensoren_max);
}

}  // namespace

void ereignisfolge::melden(ereignis_art nummer, zeit_ms stempel) {
    if (folge_.voll()) {
        folge_.nehmen();
    }
    folge_.geben({nummer, stempel});
    zustellen(false);
}

void ereignisfolge::abfragen() {
    zustellen(std::exchange(gewartet_, false));
    gewartet_ = naechstes_.has_value();
}

void ereignisfolge::leeren() {
    folge_.leeren();
    naechstes_.reset();
    gewartet_ = false;
}

/// `verdraengen`: nobody takes what is in the way of the first.
void ereignisfolge::zustellen(bool verdraengen) {
    while (naechstes_ || (naechstes_ = folge_.nehmen())) {
        if (ereignisse_[zeile_von(naechstes_->nummer)].aktiv && !std::exchange(verdraengen, false)) {
            return;
        }
        uebergeben(*std::exchange(naechstes_, std::nullopt));
    }
}

void ereignisfolge::uebergeben(const ereignis& eines) {
    if (ist_ueberfahrt(eines.nummer)) {
        ereignisse_.ueberfahrt_melden(eines.nummer, eines.stempel);
    } else {
        if (const int spur = art::spur_des_fahrertasters(eines.nummer); spur != 0) {
            ereignisse_.chaos_knopf(spur);
        }
        ereignisse_.ereignis_melden(zeile_von(eines.nummer), eines.stempel);
    }
    rennen_.tankflanken_auswerten();
}

}  // namespace tarvel
