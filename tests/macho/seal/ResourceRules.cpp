#include "tests/macho/seal/ResourceRules.h"

#include <algorithm>
#include <regex>
#include <vector>

namespace kestrune::macho {

namespace {

// What a rule says, by the key that a seal has for it.
enum class Effect { seal, optional, omit, nested };

struct Rule {
    const char* pattern;
    double weight; // the heaviest rule counts
    Effect effect;
};

constexpr double Lightest = 1;

constexpr Rule Localizations[] = {
    {R"(^Resources/.*\.lproj/)", 1000, Effect::optional},
    {R"(^Resources/.*\.lproj/locversion.plist$)", 1100, Effect::omit},
    {R"(^Resources/Base\.lproj/)", 1010, Effect::seal},
};
constexpr Rule Rules[] = {
    {R"(^.*)", Lightest, Effect::seal},
    {R"(^[^/]+$)", 10, Effect::nested},
    {R"(^(Frameworks|SharedFrameworks|PlugIns|Plug-ins|XPCServices|Helpers|MacOS|)"
     R"(Library/(Automator|Spotlight|LoginItems))/)",
     10, Effect::nested},
    {R"(.*\.dSYM($|/))", 11, Effect::seal},
    {R"(^Info\.plist$)", 20, Effect::omit},
    {R"(^PkgInfo$)", 20, Effect::omit},
    {R"(^version\.plist$)", 20, Effect::seal},
    {R"(^embedded\.provisionprofile$)", 20, Effect::seal},
    {R"(^Resources/)", 20, Effect::seal},
    {R"(^(.*/)?\.DS_Store$)", 2000, Effect::omit},
};
constexpr Rule OldRules[] = {
    {R"(^Resources/)", Lightest, Effect::seal},
    {R"(^version.plist$)", Lightest, Effect::seal},
};

class RuleSet {
public:
    template <std::size_t Count>
    explicit RuleSet(const Rule (&rules)[Count]) {
        for (const Rule& rule : rules) {
            add(rule);
        }
        for (const Rule& rule : Localizations) {
            add(rule);
        }
    }

    Treatment treatmentOf(const std::string& path) const {
        const Compiled* heaviest = nullptr;
        for (const Compiled& each : rules_) {
            if ((!heaviest || each.rule.weight > heaviest->rule.weight) &&
                std::regex_search(path, each.expression)) {
                heaviest = &each;
            }
        }
        if (!heaviest || heaviest->rule.effect == Effect::omit) {
            return {};
        }
        const Effect effect = heaviest->rule.effect;
        return {true, effect == Effect::optional, effect == Effect::nested};
    }

    const PropertyValue& stated() const { return stated_; }

private:
    struct Compiled {
        Rule rule;
        std::regex expression;
    };

    void add(const Rule& rule) {
        rules_.push_back({rule, std::regex(rule.pattern)});
        auto& all = *std::get_if<PropertyValue::Dictionary>(&stated_.value);
        all[rule.pattern] = statedRule(rule);
    }

    static PropertyValue statedRule(const Rule& rule) {
        if (rule.weight == Lightest) {
            return {true};
        }
        PropertyValue::Dictionary stated{{"weight", {rule.weight}}};
        if (rule.effect != Effect::seal) {
            stated[rule.effect == Effect::optional ? "optional"
                   : rule.effect == Effect::omit   ? "omit"
                                                   : "nested"] = {true};
        }
        return {stated};
    }

    std::vector<Compiled> rules_;
    PropertyValue stated_{PropertyValue::Dictionary()};
};

const RuleSet& rules() {
    static const RuleSet set(Rules);
    return set;
}

const RuleSet& oldRules() {
    static const RuleSet set(OldRules);
    return set;
}

} // namespace

Treatment treatmentOf(const std::string& path) { return rules().treatmentOf(path); }

Treatment oldTreatmentOf(const std::string& path) { return oldRules().treatmentOf(path); }

const PropertyValue& statedRules() { return rules().stated(); }

const PropertyValue& statedOldRules() { return oldRules().stated(); }

} // namespace kestrune::macho
