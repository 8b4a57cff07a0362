#include "shell/screens.h"

#include "support/window.h"

namespace kurbo::test {
namespace {

class ScreensTest : public SampleCompany {
  protected:
    ScreensTest() {
        client.openHome();
        mainWindow.show();
    }
    void logInWithAllRights() {
        client.session = {u"S01"_q, u"1001"_q, {}, {}, {}};
        client.session.access.IsAdmin = true;
        for (const Right right : {Right::ReadMyKurbo, Right::ReadOtherKurbo}) client.session.access.set(right, true);
    }
    [[nodiscard]] QWidget* opened(Screen screen) {
        screens.open(screen);
        return screens.window(screen);
    }

    QWidget mainWindow;
    Screens screens{client, mainWindow};
};

TEST_F(ScreensTest, EachIsOfferedAndOpensOnce) {
    for (const ScreenEntry& entry : screenTable()) {
        const Screen screen = entry.screen;
        const auto place = static_cast<int>(screen);
        client.session = {};
        EXPECT_FALSE(screens.isOffered(screen)) << place << " to nobody";
        logInWithAllRights();
        EXPECT_TRUE(screens.isOffered(screen)) << place;
        const QPointer<QWidget> window = opened(screen);
        ASSERT_TRUE(window) << place;
        EXPECT_EQ(window->windowModality(), entry.modality) << place;
        EXPECT_EQ(opened(screen), window) << place;
        EXPECT_TRUE(screens.closeAll() && !screens.isAnyOpen()) << place;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(window) << place;
    }
}

TEST_F(ScreensTest, TheCardClosesForTheTotalsUnlessTheyAreRefused) {
    logInWithAllRights();
    EXPECT_TRUE(opened(Screen::Kurbo) && opened(Screen::Total));
    EXPECT_FALSE(screens.window(Screen::Kurbo));
    EXPECT_TRUE(opened(Screen::Asign) && screens.window(Screen::Total));
    connection.execute(u"DELETE * FROM T01_Calendar"_q);
    desk.prompts.expect(u"カレンダーが作成されていません。"_q);
    EXPECT_FALSE(opened(Screen::Kurbo));
    EXPECT_TRUE(screens.window(Screen::Total) && screens.window(Screen::Asign));
    EXPECT_TRUE(screens.closeAll());
}

} // namespace
} // namespace kurbo::test
