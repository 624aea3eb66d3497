/** The daemon standing for other applications of the TV. */
#include "DeskBus.h"
#include "Tv.h"

using namespace veskar;

using StandInTest = TvTest;

TEST_F(StandInTest, SaysWhatItIsAskedAndEndsWithTheLastOfItsApplications)
{
    Process standIn = StandFor("org.tizen.ep-hotel-factory org.tizen.wizard");
    ASSERT_TRUE(standIn.Says("org.tizen.wizard stands ready"));

    const RequestData request{{"cmd", sdbus::Variant{"show\n"}},
                              {"rows", sdbus::Variant{std::vector<std::string>{"a"}}}};
    EXPECT_EQ(SendRaw(request, "org.tizen.ep-hotel-factory"), "");
    EXPECT_TRUE(standIn.Says(R"(org.tizen.ep-hotel-factory AppControl "cmd"="show\n" "rows"=["a"])"));

    Call("Terminate", "org.tizen.wizard");
    EXPECT_THROW(Call("Pause", "org.tizen.wizard"), sdbus::Error) << "nobody has the name any more";
    Call("Terminate", "org.tizen.ep-hotel-factory");
    EXPECT_EQ(standIn.Status(), 0);
}

TEST_F(StandInTest, NameThatIsTakenIsLeftAlone)
{
    const Process first = StandFor("org.tizen.wizard");
    ASSERT_TRUE(first.Says("stands ready"));
    EXPECT_EQ(StandFor("org.tizen.wizard").Status(), 69);
    EXPECT_NO_THROW(Call("Resume", "org.tizen.wizard"));
}
