#include "Frame.h"

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

/** The first test needs a process of its own, as it has with ctest: the frame's state is that of the process. */
using FrameTest = Frame;

TEST_F(FrameTest, NothingHappensBeforeCreateAndCreateNeedsItsDataAndTheMainLoop)
{
    Run(
        []
        {
            Pause();
            Terminate();
            ShowMessage("7");
            EXPECT_FALSE(tv.Logged(DLOG_INFO, "Service complete!"));
            Pause();
            EXPECT_TRUE(tv.Logged(DLOG_INFO, "Ignore pause!"));
            Resume();
            tv.Forget();
            Pause();
            EXPECT_THAT(tv.Log(DLOG_INFO), IsEmpty());

            EXPECT_FALSE(tv.application.create(nullptr));
            tv.failing = {"ecore_init"};
            EXPECT_FALSE(Create());
            EXPECT_THAT(tv.Did("window"), IsEmpty());
        });
}

TEST_F(FrameTest, MainEndsWithTheLoopsResult)
{
    for (const int result : {0, -5, -114})
    {
        tv.loopResult = result;
        EXPECT_EQ(Run([] {}), result);
        EXPECT_THAT(tv.deeds, ElementsAre("handle event 2"));
    }
}

TEST_F(FrameTest, CreateAppliesTheLanguageAndDirectionFirst)
{
    tv.texts["db/menu_widget/language"] = "pl_PL.utf8";
    tv.orientation = 1;
    Run([] { EXPECT_TRUE(Create()); });
    EXPECT_THAT(tv.deeds,
                ElementsAre("handle event 2", "language pl_PL.utf8", "window veskar-app 1", "router 42", "ea init"));
    EXPECT_TRUE(elm_config_mirrored_get());
    EXPECT_EQ(elm_policy_get(ELM_POLICY_QUIT), ELM_POLICY_QUIT_NONE);

    tv.Forget();
    tv.texts["db/menu_widget/language"] = "";
    tv.orientation = 2;
    tv.languageChanged(nullptr, nullptr);
    EXPECT_FALSE(elm_config_mirrored_get());
    EXPECT_THAT(tv.deeds, IsEmpty());
}

TEST_F(FrameTest, ATestCaseComesFromTheOnlyArgument)
{
    const auto titles = [](const Texts& arguments)
    {
        Run([] { Create(); }, arguments);
        Texts found;
        for (Evas_Object* popup : WidgetsOnScreen(tv.window, "elm_popup"))
        {
            found.push_back(TextOf(popup, "title,text"));
        }
        return found;
    };
    EXPECT_THAT(titles({}), IsEmpty());
    EXPECT_THAT(titles({"4", "4"}), IsEmpty());
    EXPECT_THAT(titles({"20"}), ElementsAre("Center aligned"));
    EXPECT_THAT(titles({"abc"}), ElementsAre("Test"));
    EXPECT_THAT(titles({"23"}), IsEmpty());
    EXPECT_THAT(titles({"-1"}), IsEmpty());
}

} // namespace
