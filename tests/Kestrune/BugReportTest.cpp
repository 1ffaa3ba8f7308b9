#include "Kestrune/BugReport.h"

#include "Kestrune/AppVersion.h"
#include "tests/Kestrune/SettingsFixture.h"

#include <string>
#include <vector>

namespace kestrune {
namespace {

using ::testing::ElementsAreArray;

// What a mail program makes of an encoded text.
std::string decoded(std::string_view text) {
    std::string result;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (text[place] == '%') {
            result += static_cast<char>(std::stoi(std::string(text.substr(place + 1, 2)), nullptr, 16));
            place += 2;
        } else {
            result += text[place];
        }
    }
    return result;
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines(1);
    for (const char character : text) {
        if (character == '\n') {
            lines.emplace_back();
        } else {
            lines.back() += character;
        }
    }
    return lines;
}

// Of a link, as a mail program reads it.
struct Mail {
    explicit Mail(const std::string& link) {
        const std::size_t query = link.find('?');
        const std::size_t body = link.find("&body=");
        to = decoded(link.substr(7, query - 7));
        subject = decoded(link.substr(query + 9, body - query - 9));
        lines = linesOf(decoded(link.substr(body + 6)));
    }

    std::string to;
    std::string subject;
    std::vector<std::string> lines;
};

class BugReport : public SettingsFixture {
protected:
    explicit BugReport(sim::BundleContents bundle = bundleOfVersion("2.1", "57"))
        : SettingsFixture(std::move(bundle)) {}
};

class BugReportWithoutValues : public BugReport {
protected:
    BugReportWithoutValues() : BugReport(sim::BundleContents()) {}
};

class TranslatedBugReport : public BugReport {
protected:
    TranslatedBugReport() : BugReport(translated()) {}

private:
    static sim::BundleContents translated() {
        sim::BundleContents bundle = bundleOfVersion("2.1", "57");
        bundle.localizedStrings["Kestrune bug report"] = "Fehler & Wünsche: 100 %";
        bundle.localizedStrings["Describe what went wrong:"] = "Was ging schief?";
        return bundle;
    }
};

TEST_F(BugReport, IsALinkThatMailProgramsUnderstand) {
    EXPECT_EQ(makeBugReportURL().absoluteString(),
              "mailto:" + std::string(SupportAddress) +
                  "?subject=Kestrune%20bug%20report&body=Describe%20what%20went%20wrong:%0A%0A%0A---%0A"
                  "App%20version:%202.1%20(57)%0AmacOS:%2014.5.0%0ALocale:%20en_US");
}

TEST_F(BugReport, DecodesToItsLines) {
    const Mail mail(makeBugReportURL().absoluteString());
    EXPECT_EQ(mail.to, SupportAddress);
    EXPECT_EQ(mail.subject, "Kestrune bug report");
    EXPECT_THAT(mail.lines, ElementsAreArray({"Describe what went wrong:", "", "", "---",
                                              "App version: 2.1 (57)", "macOS: 14.5.0", "Locale: en_US"}));
}

TEST_F(BugReportWithoutValues, HasQuestionMarksForTheVersion) {
    const Mail mail(makeBugReportURL().absoluteString());
    EXPECT_EQ(mail.lines.at(4), "App version: ? (?)");
    EXPECT_EQ(mail.lines.size(), 7U);
}

TEST_F(TranslatedBugReport, TranslatesItsSubjectAndItsFirstLine) {
    const Mail mail(makeBugReportURL().absoluteString());
    EXPECT_EQ(mail.subject, "Fehler & Wünsche: 100 %");
    EXPECT_THAT(mail.lines, ElementsAreArray({"Was ging schief?", "", "", "---", "App version: 2.1 (57)",
                                              "macOS: 14.5.0", "Locale: en_US"}));
}

TEST_F(BugReport, IsMadeInOrder) {
    EXPECT_THAT(callsOf(makeBugReportURL),
                ElementsAreArray(inOrder(
                    {{"-[NSURLComponents init]", "-[NSURLComponents setScheme:] mailto",
                      "-[NSURLComponents setPath:] " + std::string(SupportAddress)},
                     localizing("Kestrune bug report"),
                     localizing("Describe what went wrong:"),
                     callsOf(appVersionString),
                     {"NSProcessInfo.processInfo", "-[NSProcessInfo operatingSystemVersion]",
                      "NSLocale.currentLocale", "-[NSLocale localeIdentifier]",
                      "-[NSURLComponents setQueryItems:] subject, body", "-[NSURLComponents URL]"}})));
}

TEST_F(BugReport, EndsWithoutALineFeed) {
    EXPECT_EQ(bugReportBody(), "Describe what went wrong:\n\n\n---\nApp version: 2.1 (57)\nmacOS: 14.5.0\n"
                               "Locale: en_US");
}

using BugReportDeathTest = BugReport;

TEST_F(BugReportDeathTest, StopsTheProcessWithoutALink) {
    session.faults().refuseURLs(true);
    EXPECT_DEATH(makeBugReportURL(), "The link of the bug report is no URL");
}

struct SystemExample {
    sim::Surroundings surroundings;
    std::string version;
};

TEST(BugReportsSystem, HasAlwaysThreePartsAndTheWholeLocale) {
    const SystemExample examples[] = {{{{13, 0, 0}, "de_DE"}, "13.0.0"},
                                      {{{26, 10, 12}, "en_GB@rg=uszzzz"}, "26.10.12"}};
    for (const SystemExample& example : examples) {
        sim::SessionOptions options;
        options.surroundings = example.surroundings;
        const sim::Session session(std::move(options));
        EXPECT_EQ(osVersionString(), example.version);
        EXPECT_TRUE(bugReportBody().ends_with("\nLocale: " + example.surroundings.localeIdentifier));
    }
}

} // namespace
} // namespace kestrune
