#include "tests/macho/loader/Messages.h"

#include "mac/vocabulary/Runtime.h"
#include "mac/vocabulary/Vocabulary.h"

#include <gtest/gtest.h>

#include <bit>
#include <stdexcept>

namespace kestrune::macho {
namespace {

// Its result is in memory on either processor, but with a function of its own on one of them.
struct Large {
    long parts[3];
};

struct Pair {
    double parts[2];
};

template <typename Signature>
Signature* sending(std::string_view name = "_objc_msgSend") {
    return std::bit_cast<Signature*>(messageFunctions(MessageChecks::structureReturns).at(name));
}

template <typename Signature>
Signature* sendingForStructure() {
    const bool isOneFunction = !messageFunctions(MessageChecks::none).contains("_objc_msgSend_stret");
    return sending<Signature>(isOneFunction ? "_objc_msgSend" : "_objc_msgSend_stret");
}

// More than either processor has registers for.
double weigh(id, SEL, long a, long b, long c, long d, long e, long f, long g, double h, double i, double j,
             double k, double l, double m, double n, double o, double p) {
    const long whole[] = {a, b, c, d, e, f, g};
    const double broken[] = {h, i, j, k, l, m, n, o, p};
    double sum = 0;
    for (const long number : whole) {
        sum = sum * 3 + static_cast<double>(number);
    }
    for (const double number : broken) {
        sum = sum * 3 + number;
    }
    return sum;
}

Large measure(id, SEL, long number) { return {{number, number + 1, number + 2}}; }

// Leaves nothing as it was in the registers for arguments and for the place of a structure.
void useEveryRegister(id, SEL) {
    static auto* volatile weighing = weigh;
    static auto* volatile measuring = measure;
    weighing(nullptr, nullptr, -1, -2, -3, -4, -5, -6, -7, -1, -2, -3, -4, -5, -6, -7, -8, -9);
    measuring(nullptr, nullptr, -1);
}

// A class with one method, which is for the class. The first message that it gets is looked up slowly, and
// initializes it on the way.
id classWith(const char* name, const char* selector, IMP implementation, const char* encoding,
             IMP initialize = mac::asImplementation(useEveryRegister)) {
    const Class type = objc_allocateClassPair(mac::foundation.object.find(), name, 0);
    const id object = reinterpret_cast<id>(type);
    class_addMethod(object_getClass(object), sel_registerName(selector), implementation, encoding);
    class_addMethod(object_getClass(object), sel_registerName("initialize"), initialize, "v@:");
    objc_registerClassPair(type);
    return object;
}

TEST(Messages, CarryEveryArgument) {
    const id type =
        classWith("KestruneWeighing", "weigh", mac::asImplementation(weigh), "d@:qqqqqqqddddddddd");
    const SEL selector = sel_registerName("weigh");
    EXPECT_EQ(sending<decltype(weigh)>()(type, selector, 1, 2, 3, 4, 5, 6, 7, 8.5, 9.5, 10.5, 11.5, 12.5,
                                         13.5, 14.5, 15.5, 16.5),
              weigh(type, selector, 1, 2, 3, 4, 5, 6, 7, 8.5, 9.5, 10.5, 11.5, 12.5, 13.5, 14.5, 15.5, 16.5));
}

TEST(Messages, LeadToStructuresInMemory) {
    const id type =
        classWith("KestruneMeasuring", "measure:", mac::asImplementation(measure), "{Large=qqq}@:q");
    const Large result = sendingForStructure<decltype(measure)>()(type, sel_registerName("measure:"), 7);
    EXPECT_EQ(result.parts[0], 7);
    EXPECT_EQ(result.parts[1], 8);
    EXPECT_EQ(result.parts[2], 9);
}

TEST(Messages, GiveZeroWhenSentToNil) {
    const SEL selector = sel_registerName("measure:");
    EXPECT_EQ(sending<long(id, SEL, long)>()(nullptr, selector, 7), 0);
    // The arguments are where the results are.
    const Pair pair = sending<Pair(id, SEL, double, double)>()(nullptr, selector, 1.5, 2.5);
    EXPECT_EQ(pair.parts[0], 0);
    EXPECT_EQ(pair.parts[1], 0);
}

void fail(id, SEL) { throw std::runtime_error("in the first message"); }

TEST(Messages, LetExceptionsOfTheLookUpPass) {
    const id type = classWith("KestruneFailing", "measure:", mac::asImplementation(measure), "{Large=qqq}@:q",
                              mac::asImplementation(fail));
    EXPECT_THROW(sending<id(id, SEL)>()(type, sel_registerName("class")), std::runtime_error);
}

} // namespace
} // namespace kestrune::macho
