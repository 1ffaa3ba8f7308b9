#include "sim/formats/PropertyListReader.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <system_error>
#include <utility>

namespace kestrune::sim {

namespace {

constexpr std::string_view XMLWhiteSpace = " \t\r\n";
constexpr int DeepestNesting = 64;

struct Entity {
    std::string_view name;
    char character;
};

constexpr Entity Entities[] = {
    {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};

template <typename Number>
std::optional<Number> parseNumber(std::string_view text) {
    Number number{};
    const char* end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end) {
        return std::nullopt;
    }
    return number;
}

// A recursive descent over the text. The first failure is kept and ends everything: each step answers whether
// to go on.
class Reader {
public:
    explicit Reader(std::string_view xml) : rest_(xml) {}

    std::variant<PropertyList, PropertyListError> read() {
        PropertyList list;
        if (readDocument(list)) {
            return list;
        }
        return PropertyListError{line_, std::move(failure_)};
    }

private:
    bool fail(std::string message) {
        failure_ = std::move(message);
        return false;
    }

    void advance(std::size_t count) {
        line_ += static_cast<std::size_t>(
            std::count(rest_.begin(), rest_.begin() + static_cast<std::ptrdiff_t>(count), '\n'));
        rest_.remove_prefix(count);
    }

    bool accept(std::string_view token) {
        if (!rest_.starts_with(token)) {
            return false;
        }
        advance(token.size());
        return true;
    }

    bool expect(std::string_view token) {
        skipBlanks();
        return accept(token) || fail("expected " + std::string(token));
    }

    void skipBlanks() {
        while (true) {
            advance(std::min(rest_.find_first_not_of(XMLWhiteSpace), rest_.size()));
            if (!rest_.starts_with("<!--")) {
                return;
            }
            const std::size_t end = rest_.find("-->");
            advance(end == std::string_view::npos ? rest_.size() : end + 3);
        }
    }

    // A declaration such as <?xml ...?>, or nothing.
    void skipDeclaration(std::string_view start) {
        skipBlanks();
        if (rest_.starts_with(start)) {
            const std::size_t end = rest_.find('>');
            advance(end == std::string_view::npos ? rest_.size() : end + 1);
        }
    }

    bool readDocument(PropertyList& list) {
        skipDeclaration("<?xml");
        skipDeclaration("<!DOCTYPE");
        skipBlanks();
        if (!accept("<plist version=\"1.0\">") && !accept("<plist>")) {
            return fail("expected <plist version=\"1.0\">");
        }
        if (!readValue(list, 0) || !expect("</plist>")) {
            return false;
        }
        skipBlanks();
        return rest_.empty() || fail("expected nothing after </plist>");
    }

    bool readValue(PropertyList& list, int depth) {
        skipBlanks();
        if (depth > DeepestNesting) {
            return fail("the values are nested too deeply");
        }
        if (accept("<true/>")) {
            list.value = true;
        } else if (accept("<false/>")) {
            list.value = false;
        } else if (accept("<dict/>")) {
            list.value = PropertyListDictionary();
        } else if (accept("<array/>")) {
            list.value = PropertyList::Array();
        } else if (accept("<string/>")) {
            list.value = std::string();
        } else if (accept("<dict>")) {
            return readDictionary(list.value.emplace<PropertyListDictionary>(), depth);
        } else if (accept("<array>")) {
            return readArray(list.value.emplace<PropertyList::Array>(), depth);
        } else {
            return readScalar(list);
        }
        return true;
    }

    bool readScalar(PropertyList& list) {
        if (accept("<string>")) {
            return readText("</string>", list.value.emplace<std::string>());
        }
        if (accept("<data>")) {
            return readText("</data>", list.value.emplace<PropertyList::Data>().base64);
        }
        if (accept("<date>")) {
            return readText("</date>", list.value.emplace<PropertyList::Date>().iso8601);
        }
        if (accept("<integer>")) {
            return readNumber<std::int64_t>("</integer>", "a whole number", list);
        }
        if (accept("<real>")) {
            return readNumber<double>("</real>", "a number", list);
        }
        return fail("expected a property-list value");
    }

    template <typename Number>
    bool readNumber(std::string_view end, std::string_view what, PropertyList& list) {
        std::string text;
        if (!readText(end, text)) {
            return false;
        }
        const std::optional<Number> number = parseNumber<Number>(text);
        if (!number) {
            return fail("expected " + std::string(what) + " before " + std::string(end));
        }
        list.value = *number;
        return true;
    }

    bool readDictionary(PropertyListDictionary& dictionary, int depth) {
        while (skipBlanks(), !accept("</dict>")) {
            std::string key;
            PropertyList value;
            if (!expect("<key>") || !readText("</key>", key) || !readValue(value, depth + 1)) {
                return false;
            }
            dictionary.insert_or_assign(std::move(key), std::move(value));
        }
        return true;
    }

    bool readArray(PropertyList::Array& array, int depth) {
        while (skipBlanks(), !accept("</array>")) {
            if (!readValue(array.emplace_back(), depth + 1)) {
                return false;
            }
        }
        return true;
    }

    bool readText(std::string_view end, std::string& text) {
        while (!rest_.empty() && rest_.front() != '<') {
            if (rest_.front() == '&') {
                if (!readEntity(text)) {
                    return false;
                }
                continue;
            }
            text += rest_.front();
            advance(1);
        }
        return accept(end) || fail("expected " + std::string(end));
    }

    bool readEntity(std::string& text) {
        for (const Entity& entity : Entities) {
            if (accept(entity.name)) {
                text += entity.character;
                return true;
            }
        }
        return fail("expected one of &amp; &lt; &gt; &quot; &apos;");
    }

    std::string_view rest_;
    std::size_t line_ = 1;
    std::string failure_;
};

} // namespace

std::variant<PropertyList, PropertyListError> readPropertyList(std::string_view xml) {
    return Reader(xml).read();
}

} // namespace kestrune::sim
