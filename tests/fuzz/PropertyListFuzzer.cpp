// Property lists: whatever the reader accepts is written and read again as the same value, and whatever it
// refuses is refused at a line of the input.
#include "sim/formats/PropertyListReader.h"
#include "sim/formats/PropertyListWriter.h"
#include "tests/fuzz/Fuzzer.h"

#include <algorithm>

namespace kestrune {
namespace {

using namespace sim;

// Equal, where a real that is no number counts as equal to another one.
bool isSame(const PropertyList& one, const PropertyList& other) {
    if (one.value.index() != other.value.index()) {
        return false;
    }
    if (const auto* real = std::get_if<double>(&one.value)) {
        const double otherReal = std::get<double>(other.value);
        return *real == otherReal || (*real != *real && otherReal != otherReal);
    }
    if (const auto* array = std::get_if<PropertyList::Array>(&one.value)) {
        const auto& otherArray = std::get<PropertyList::Array>(other.value);
        return std::equal(array->begin(), array->end(), otherArray.begin(), otherArray.end(), isSame);
    }
    if (const auto* dictionary = std::get_if<PropertyListDictionary>(&one.value)) {
        const auto& otherDictionary = std::get<PropertyListDictionary>(other.value);
        return std::equal(dictionary->begin(), dictionary->end(), otherDictionary.begin(),
                          otherDictionary.end(), [](const auto& entry, const auto& otherEntry) {
                              return entry.first == otherEntry.first &&
                                     isSame(entry.second, otherEntry.second);
                          });
    }
    return one == other;
}

// The getters of the defaults answer for every value, and agree with each other.
void checkConversions(const PropertyList& list) {
    const auto text = list.asString();
    const bool isNumberOrText = !std::holds_alternative<PropertyList::Data>(list.value) &&
                                !std::holds_alternative<PropertyList::Date>(list.value) &&
                                !std::holds_alternative<PropertyList::Array>(list.value) &&
                                !std::holds_alternative<PropertyListDictionary>(list.value);
    require(text.has_value() == isNumberOrText, "numbers and texts alone have a text");
    require(isNumberOrText || (!list.asBool() && list.asDouble() == 0), "other values are no and 0");
    const double number = list.asDouble();
    require(!std::holds_alternative<std::string>(list.value) || number == number, "a text reads as a number");
}

void check(const std::string& xml) {
    const auto result = readPropertyList(xml);
    if (const auto* error = std::get_if<PropertyListError>(&result)) {
        const auto lines = static_cast<std::size_t>(std::count(xml.begin(), xml.end(), '\n')) + 1;
        require(error->line >= 1 && error->line <= lines, "an error names a line of the input");
        requireOneLine(error->message, "");
        return;
    }
    const auto& list = std::get<PropertyList>(result);
    checkConversions(list);
    const std::string written = writePropertyList(list);
    const auto again = readPropertyList(written);
    require(std::holds_alternative<PropertyList>(again), "what was written is read again");
    require(isSame(std::get<PropertyList>(again), list), "what was written reads back equal");
    require(writePropertyList(std::get<PropertyList>(again)) == written, "a value is always written alike");
}

} // namespace
} // namespace kestrune

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kestrune::check(kestrune::asText(data, size));
    return 0;
}
