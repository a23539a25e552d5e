#pragma once

#include <gtest/gtest.h>

#include "tests/plattform/neustart.h"
#include "tests/plattform/testprogramm.h"

namespace tarvel::test {

/// A program whose races are cut off.
class Wiederaufnahme : public testing::Test {
protected:
    void SetUp() override {
        t_.p.belegung.vorbelegen(belegung_stufe::alle);
        t_.p.form1.wertmin.eingeben("1");
    }

    testprogramm t_;
};

}  // namespace tarvel::test
