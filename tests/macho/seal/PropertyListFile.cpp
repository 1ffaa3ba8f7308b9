#include "tests/macho/seal/PropertyListFile.h"

#include "tests/macho/Bytes.h"
#include "tests/macho/seal/SealError.h"

#include <plist/plist.h>

#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>

namespace kestrune::macho {

namespace {

struct FreeMemory {
    void operator()(char* memory) const { std::free(memory); }
};
struct FreeList {
    void operator()(plist_t list) const { plist_free(list); }
};
using Text = std::unique_ptr<char, FreeMemory>;

PropertyValue valueOf(plist_t node);

PropertyValue dictionaryOf(plist_t node) {
    PropertyValue::Dictionary dictionary;
    plist_dict_iter next = nullptr;
    plist_dict_new_iter(node, &next);
    const std::unique_ptr<char, FreeMemory> iterator(static_cast<char*>(next));
    while (true) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(node, next, &key, &value);
        const Text owned(key);
        if (!value) {
            return {std::move(dictionary)};
        }
        dictionary[key] = valueOf(value);
    }
}

PropertyValue textOf(plist_t node) {
    char* text = nullptr;
    plist_get_string_val(node, &text);
    const Text owned(text);
    return {std::string(text ? text : "")};
}

PropertyValue dataOf(plist_t node) {
    char* data = nullptr;
    std::uint64_t size = 0;
    plist_get_data_val(node, &data, &size);
    const Text owned(data);
    return {PropertyValue::Data(data, data + size)};
}

PropertyValue valueOf(plist_t node) {
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        std::uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return {value != 0};
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return {value};
    }
    case PLIST_STRING:
        return textOf(node);
    case PLIST_DATA:
        return dataOf(node);
    case PLIST_DICT:
        return dictionaryOf(node);
    default:
        return {};
    }
}

// No character of XML. libplist ends the process that asks it for a text with one.
bool hasZero(std::string_view xml) { return xml.find('\0') != std::string_view::npos; }

bool canBeXml(plist_t list) {
    char* xml = nullptr;
    std::uint32_t size = 0;
    plist_to_xml(list, &xml, &size);
    const Text owned(xml);
    return xml && !hasZero({xml, size});
}

} // namespace

const PropertyValue* PropertyValue::at(const std::string& key) const {
    const auto* const dictionary = as<Dictionary>();
    const auto found = dictionary ? dictionary->find(key) : Dictionary::const_iterator();
    return dictionary && found != dictionary->end() ? &found->second : nullptr;
}

std::optional<std::string> PropertyValue::text(const std::string& key) const {
    const PropertyValue* const found = at(key);
    const auto* const text = found ? found->as<std::string>() : nullptr;
    return text ? std::optional(*text) : std::nullopt;
}

std::optional<PropertyValue> readPropertyListFile(std::span<const std::uint8_t> content,
                                                  const std::string& name) {
    if (content.size() > LargestPropertyList) {
        throw SealError(printable(name) + ": has " + std::to_string(content.size()) +
                        " bytes, and lists of up to " + std::to_string(LargestPropertyList) + " are read");
    }
    if (content.empty()) {
        return std::nullopt;
    }
    const char* const data = reinterpret_cast<const char*>(content.data());
    const auto size = static_cast<std::uint32_t>(content.size());
    plist_t root = nullptr;
    if (std::string_view(data, size).starts_with("bplist")) {
        plist_from_bin(data, size, &root);
    } else if (!hasZero({data, size})) {
        plist_from_xml(data, size, &root);
    }
    const std::unique_ptr<void, FreeList> owned(root);
    return root && canBeXml(root) ? std::optional(valueOf(root)) : std::nullopt;
}

} // namespace kestrune::macho
