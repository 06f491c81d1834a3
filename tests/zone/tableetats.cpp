// The states of the tools.

#include "zone/tableetats.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "zone/etats.h"

TEST(Table, CompleteEtCoherente) {
    for (int etat = 0; etat < NOMBRE_ETATS; ++etat)
        EXPECT_EQ(LigneDe(etat).Numero, etat);
    for (const int etat : {-1, static_cast<int>(NOMBRE_ETATS), 1001})
        EXPECT_THROW(LigneDe(etat), std::logic_error) << etat;
}
