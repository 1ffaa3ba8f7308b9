#include "sim/formats/PropertyListWriter.h"

#include <string_view>

namespace kestrune::sim {

namespace {

std::string escaped(std::string_view text) {
    std::string result;
    for (const char character : text) {
        switch (character) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        default:
            result += character;
        }
    }
    return result;
}

std::string element(std::string_view name, std::string_view text) {
    return "<" + std::string(name) + ">" + escaped(text) + "</" + std::string(name) + ">\n";
}

// Called with each kind of value; `indent` holds the tabs before the value's line.
struct Writer {
    std::string indent;

    std::string operator()(bool flag) const { return flag ? "<true/>\n" : "<false/>\n"; }
    std::string operator()(std::int64_t whole) const { return element("integer", std::to_string(whole)); }
    std::string operator()(double real) const { return element("real", shortestText(real)); }
    std::string operator()(const std::string& text) const { return element("string", text); }
    std::string operator()(const PropertyList::Data& data) const { return element("data", data.base64); }
    std::string operator()(const PropertyList::Date& date) const { return element("date", date.iso8601); }

    std::string operator()(const PropertyList::Array& array) const {
        std::string result = "<array>\n";
        for (const PropertyList& item : array) {
            result += nested(item);
        }
        return result + indent + "</array>\n";
    }

    std::string operator()(const PropertyListDictionary& dictionary) const {
        std::string result = "<dict>\n";
        for (const auto& [key, value] : dictionary) {
            result += indent + "\t" + element("key", key) + nested(value);
        }
        return result + indent + "</dict>\n";
    }

    std::string nested(const PropertyList& list) const {
        return indent + "\t" + std::visit(Writer{indent + "\t"}, list.value);
    }
};

} // namespace

std::string writePropertyList(const PropertyList& list) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\">\n" +
           std::visit(Writer{""}, list.value) + "</plist>\n";
}

} // namespace kestrune::sim
