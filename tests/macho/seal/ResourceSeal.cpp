#include "tests/macho/seal/ResourceSeal.h"

#include "tests/macho/Bytes.h"
#include "tests/macho/seal/Digest.h"
#include "tests/macho/seal/PropertyListFile.h"
#include "tests/macho/seal/ResourceRules.h"
#include "tests/macho/seal/SealCheck.h"
#include "tests/macho/seal/SealError.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace kestrune::macho {

namespace {

using Data = PropertyValue::Data;
using Dictionary = PropertyValue::Dictionary;

constexpr std::string_view SealFolder = "_CodeSignature";
constexpr std::string_view SealFile = "_CodeSignature/CodeResources";

class Check {
public:
    Check(const FileTree& contents, const std::string& program, const FileContent& codeResources)
        : contents_(contents), program_(program) {
        const auto seal = readPropertyListFile(codeResources, nameOf(std::string(SealFile)));
        files_ = dictionaryIn(seal, "files2");
        oldFiles_ = dictionaryIn(seal, "files");
        // With other rules a seal could leave out whatever it likes.
        if (!isStated(seal, "rules2", statedRules()) || !isStated(seal, "rules", statedOldRules())) {
            refuse(std::string(SealFile), "has other rules than every seal has");
        }
    }

    void run() {
        for (const auto& [path, entry] : contents_.entries) {
            checkEntry(path, entry);
        }
        for (const auto& [path, entry] : files_) {
            requirePresent(path, entry, treatmentOf(path), seen_);
        }
        for (const auto& [path, entry] : oldFiles_) {
            requirePresent(path, entry, oldTreatmentOf(path), oldSeen_);
        }
    }

private:
    std::string nameOf(const std::string& path) const { return contents_.name + "/" + path; }

    [[noreturn]] void refuse(const std::string& path, const std::string& what) const {
        throw SealError(printable(nameOf(path)) + ": " + what);
    }

    Dictionary dictionaryIn(const std::optional<PropertyValue>& seal, const std::string& key) const {
        const PropertyValue* const found = seal ? seal->at(key) : nullptr;
        const auto* const dictionary = found ? found->as<Dictionary>() : nullptr;
        if (!dictionary) {
            refuse(std::string(SealFile), "has no " + key);
        }
        return *dictionary;
    }

    static bool isStated(const std::optional<PropertyValue>& seal, const std::string& key,
                         const PropertyValue& rules) {
        const PropertyValue* const found = seal ? seal->at(key) : nullptr;
        return found && *found == rules;
    }

    void checkEntry(const std::string& path, const std::variant<SubFolder, FileContent, LinkTarget>& entry) {
        if (path == program_ || path == SealFolder || path == SealFile || isInCode(path)) {
            return;
        }
        const Treatment treatment = treatmentOf(path);
        if (const auto* const link = std::get_if<LinkTarget>(&entry)) {
            if (treatment.isSealed) {
                checkLink(path, *link);
            }
        } else if (const auto* const content = std::get_if<FileContent>(&entry)) {
            if (treatment.isCode) {
                const PropertyValue& seal = sealOf(path);
                checkCode(path, seal, checkProgramSeal(*content, printable(contents_.name + "/" + path)));
            } else if (treatment.isSealed) {
                checkFile(path, *content, treatment);
            }
            checkOldFile(path, *content);
        } else if (treatment.isCode && isBundleName(path)) {
            code_.push_back(path + "/");
            const PropertyValue& seal = sealOf(path);
            checkCode(path, seal, checkSeal(contents_.below(path)));
        }
    }

    bool isInCode(const std::string& path) const {
        return std::any_of(code_.begin(), code_.end(),
                           [&](const std::string& folder) { return path.starts_with(folder); });
    }

    // Of the folders among code, those with a suffix are bundles.
    static bool isBundleName(const std::string& path) {
        return path.find('.', path.find_last_of('/') + 1) != std::string::npos;
    }

    const PropertyValue& sealOf(const std::string& path) {
        const auto found = files_.find(path);
        if (found == files_.end()) {
            refuse(path, "was added after the bundle was sealed");
        }
        seen_.insert(path);
        return found->second;
    }

    void checkLink(const std::string& path, const LinkTarget& link) {
        if (sealOf(path).text("symlink") != link.path) {
            refuse(path, "is a link to " + printable(link.path) + ", and was sealed as something else");
        }
    }

    void checkFile(const std::string& path, const FileContent& content, const Treatment& treatment) {
        const PropertyValue& seal = sealOf(path);
        const PropertyValue* const hash = seal.at("hash2");
        const Sha256 actual = sha256(content);
        if (!hash || hash->value != PropertyValue{Data(actual.begin(), actual.end())}.value) {
            refuse(path, "was changed after it was sealed");
        }
        const PropertyValue* const optional = seal.at("optional");
        if (treatment.isOptional != (optional && *optional == PropertyValue{true})) {
            refuse(path, treatment.isOptional ? "is not sealed as optional" : "is sealed as optional");
        }
    }

    void checkOldFile(const std::string& path, const FileContent& content) {
        const Treatment treatment = oldTreatmentOf(path);
        const auto found = oldFiles_.find(path);
        // Those rules omit less; what today's omit need not be there.
        if (!treatment.isSealed || (!treatmentOf(path).isSealed && found == oldFiles_.end())) {
            return;
        }
        const PropertyValue* seal = found == oldFiles_.end() ? nullptr : &found->second;
        oldSeen_.insert(path);
        if (treatment.isOptional && seal) {
            seal = seal->at("hash");
        }
        const Sha1 actual = sha1(content);
        if (!seal || seal->value != PropertyValue{Data(actual.begin(), actual.end())}.value) {
            refuse(path, "is not what the seal has for old systems");
        }
    }

    void checkCode(const std::string& path, const PropertyValue& seal,
                   const std::vector<SealedHalf>& halves) const {
        std::string requirement;
        bool isKnown = false;
        const PropertyValue* const cdhash = seal.at("cdhash");
        for (const SealedHalf& half : halves) {
            requirement +=
                (requirement.empty() ? "cdhash H\"" : " or cdhash H\"") + digits(half.cdhash) + "\"";
            isKnown =
                isKnown || (cdhash && *cdhash == PropertyValue{Data(half.cdhash.begin(), half.cdhash.end())});
        }
        if (!isKnown || seal.text("requirement") != requirement) {
            refuse(path, "has another seal than the one that was sealed with the bundle");
        }
    }

    void requirePresent(const std::string& path, const PropertyValue& entry, const Treatment& treatment,
                        const std::set<std::string>& seen) const {
        const PropertyValue* const optional = entry.at("optional");
        const bool mayBeMissing = treatment.isOptional && optional && *optional == PropertyValue{true};
        if (!seen.contains(path) && !mayBeMissing) {
            refuse(path, "was sealed and is missing");
        }
    }

    const FileTree& contents_;
    const std::string& program_;
    Dictionary files_;
    Dictionary oldFiles_;
    std::set<std::string> seen_;
    std::set<std::string> oldSeen_;
    std::vector<std::string> code_; // folders with seals of their own
};

} // namespace

void checkResources(const FileTree& contents, const std::string& program, const FileContent& codeResources) {
    Check(contents, program, codeResources).run();
}

void requireLinksWithin(const FileTree& tree) {
    for (const auto& [path, entry] : tree.entries) {
        const auto* const link = std::get_if<LinkTarget>(&entry);
        if (!link) {
            continue;
        }
        const auto target = (std::filesystem::path(path).parent_path() / link->path).lexically_normal();
        if (target.is_absolute() || *target.begin() == "..") {
            throw SealError(printable(tree.name + "/" + path) + ": is a link out of the bundle, to " +
                            printable(link->path));
        }
    }
}

} // namespace kestrune::macho
