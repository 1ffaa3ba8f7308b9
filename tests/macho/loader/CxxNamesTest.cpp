#include "tests/macho/loader/CxxNames.h"

#include <gtest/gtest.h>

namespace kestrune::macho {
namespace {

TEST(CxxNames, KnowConstructorsAndDestructors) {
    for (const char* const name :
         {"_ZNSt11logic_errorC2EPKc", "_ZNSt13runtime_errorC1EPKc", "_ZNSt20bad_array_new_lengthC1Ev",
          "_ZNSt9exceptionD2Ev", "_ZNSt3__119__shared_weak_countD2Ev", "_ZNSt3__16vectorIiE3RowC1EPFvvE",
          "_ZNSt7__apple12basic_stringIcNS_11char_traitsIcEENS_9allocatorIcEEEC1ERKS5_",
          "_ZNSt3__16vectorIiNS_9allocatorIiEEED1Ev", "_ZNSt3__19allocatorIcEC1IiEERKNS0_IT_EE"}) {
        EXPECT_TRUE(givesItsObject(name)) << name;
    }
}

TEST(CxxNames, TakeNothingElseForOne) {
    for (const char* const name :
         {"__cxa_throw", "_Znwm", "_ZdlPv", "_ZSt9terminatev", "_ZNKSt9exception4whatEv", "_ZTISt9exception",
          "_ZTVSt12length_error", "_ZNSt3__19to_stringEj", "_ZN2C12C2E", "_ZN2C12C2Ev", "_ZN2D13runEPS_",
          "_ZNKSt3__14lessIiEclERKiS3_",
          "_ZNSt3__112basic_stringIcNS_11char_traitsIcEENS_9allocatorIcEEE6appendEPKcm",
          "_ZNSt3__1plIcNS_11char_traitsIcEENS_9allocatorIcEEEENS_12basic_stringIT_T0_T1_EEPKS6_RKS9_"}) {
        EXPECT_FALSE(givesItsObject(name)) << name;
    }
}

TEST(CxxNames, SayWhatMayHaveStrings) {
    for (const char* const name :
         {"_ZNSt3__19to_stringEj", "_ZNKSt3__114error_category7messageEi", "_ZNSt3__18ios_base4initEPv",
          "_ZNSt13runtime_errorC1ERKNSt3__112basic_stringIcNS0_11char_traitsIcEENS0_9allocatorIcEEEE"}) {
        EXPECT_TRUE(mayHaveStrings(name)) << name;
    }
    for (const char* const name :
         {"_ZNSt13runtime_errorC1EPKc", "__cxa_throw", "_ZNSt3__112__next_primeEm",
          "_ZNSt3__119__shared_weak_count4lockEv", "_ZTINSt3__119__shared_weak_countE"}) {
        EXPECT_FALSE(mayHaveStrings(name)) << name;
    }
}

TEST(CxxNames, LeadToTheFunctionsWithStringsOfApple) {
    EXPECT_EQ(withStringsOfApple("_ZNSt3__19to_stringEj"), "_ZNSt7__apple9to_stringEj");
    EXPECT_EQ(withStringsOfApple("_Z3runRNSt3__112basic_stringIcEENSt3__14lessIiEE"),
              "_Z3runRNSt7__apple12basic_stringIcEENSt7__apple4lessIiEE");
    EXPECT_EQ(withStringsOfApple("_ZNSt13runtime_errorC1EPKc"), "_ZNSt13runtime_errorC1EPKc");
}

} // namespace
} // namespace kestrune::macho
