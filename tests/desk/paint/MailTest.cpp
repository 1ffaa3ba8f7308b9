#include "desk/paint/desk/DeskHitTest.h"
#include "desk/paint/mac/MailLayout.h"
#include "tests/desk/paint/CloseUp.h"
#include "tests/desk/paint/SystemPictures.h"

#include <gtest/gtest.h>

#include <vector>

namespace kestrune::desk {
namespace {

DeskPicture withMail() {
    DeskPicture picture = withStatusItem();
    picture.mail = MailPicture{0, "support@example.org", "A bug", "What went wrong:\n\n---\nmacOS: 14.5.0"};
    return picture;
}

MailLayout mailOf(const DeskPicture& picture) { return *mailLayout(picture); }

std::optional<DeskTarget> at(const DeskPicture& picture, Point place) {
    DeskHitTest hitTest;
    return hitTest.targetAt(picture, place);
}

TEST(Mail, IsThereOnlyWhenItIsOpen) { EXPECT_FALSE(mailLayout(withStatusItem())); }

TEST(Mail, HasItsPartsBelowEachOther) {
    const MailLayout mail = mailOf(withMail());
    const std::vector<Rect> parts{mail.titleBar, mail.recipient, mail.subject, mail.body};
    for (std::size_t index = 0; index < parts.size(); ++index) {
        EXPECT_TRUE(encloses(mail.frame, parts[index])) << index;
        EXPECT_TRUE(index == 0 || parts[index].minY() >= parts[index - 1].maxY()) << index;
    }
    EXPECT_TRUE(encloses(mail.titleBar, mail.closeButton));
}

TEST(Mail, TakesThePointerBeforeTheSettingsAndIsBehindTheDialog) {
    DeskPicture picture = withMail();
    picture.settingsPane = withPane().settingsPane;
    const MailLayout mail = mailOf(picture);
    EXPECT_EQ(at(picture, centerOf(mail.closeButton)), DeskTarget(MailCloseTarget{}));
    EXPECT_EQ(at(picture, centerOf(mail.body)), DeskTarget(MailTarget{}));
    EXPECT_FALSE(at(picture, {mail.frame.minX() - 12, mail.frame.maxY() - 4}) == DeskTarget(MailTarget{}));
    picture.permissionDialog = withDialog().permissionDialog;
    picture.permissionDialog->display = 0;
    const Point shared{600, 470};
    ASSERT_TRUE(mail.body.contains(shared));
    EXPECT_EQ(at(picture, shared), DeskTarget(DialogTarget{}));
    DeskHitTest hitTest;
    EXPECT_EQ(hitTest.areaOf(picture, MailCloseTarget{}), mail.closeButton);
    EXPECT_FALSE(hitTest.areaOf(withStatusItem(), MailCloseTarget{}));
}

TEST(Mail, ShowsWhatIsWritten) {
    const DeskPicture picture = withMail();
    const CloseUp painted{picture};
    const MailLayout mail = mailOf(picture);
    const auto differsIn = [&](const Rect& area, const DeskPicture& other) {
        const CloseUp changed{other};
        for (double y = area.minY(); y < area.maxY(); ++y) {
            for (double x = area.minX(); x < area.maxX(); ++x) {
                if (!(painted.at({x, y}) == changed.at({x, y}))) {
                    return true;
                }
            }
        }
        return false;
    };
    DeskPicture other = picture;
    other.mail->recipient = "help@example.org";
    EXPECT_TRUE(differsIn(mail.recipient, other));
    EXPECT_FALSE(differsIn(mail.body, other));
    other = picture;
    other.mail->subject = "Another";
    EXPECT_TRUE(differsIn(mail.subject, other));
    other = picture;
    other.mail->body += " and more";
    EXPECT_TRUE(differsIn(mail.body, other));
    EXPECT_FALSE(differsIn(mail.subject, other));
    other = picture;
    other.pressed = MailCloseTarget{};
    EXPECT_TRUE(differsIn(mail.closeButton, other));
    // A body without end stays in its place.
    other = picture;
    for (int line = 0; line < 200; ++line) {
        other.mail->body += "\nline";
    }
    EXPECT_FALSE(differsIn({mail.frame.minX(), mail.body.maxY() + 1, mail.frame.width(), 12}, other));
}

} // namespace
} // namespace kestrune::desk
