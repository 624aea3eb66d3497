/** The daemon standing for other applications of the TV. */
#include "DeskBus.h"
#include "Tv.h"

using namespace veskar;

class StandInTest : public TvTest
{
protected:
    static Process StandFor(const std::string& appIds)
    {
        return Process({"sh", "-c", "exec veskar-services --own " + appIds + " 2>&1"});
    }

    static bool Says(const Process& process, const std::string& text)
    {
        return WaitUntil([&] { return process.Output().find(text) != std::string::npos; });
    }

    void Call(const std::string& appId, const std::string& method)
    {
        sdbus::createProxy(*m_bus, appId, Applications::PathOf(appId))
            ->callMethod(method)
            .onInterface(Applications::interface);
    }
};

TEST_F(StandInTest, SaysWhatItIsAskedAndEndsWithTheLastOfItsApplications)
{
    Process standIn = StandFor("org.tizen.ep-hotel-factory org.tizen.wizard");
    ASSERT_TRUE(Says(standIn, "org.tizen.wizard stands ready"));

    const RequestData request{{"cmd", sdbus::Variant{"show\n"}},
                              {"rows", sdbus::Variant{std::vector<std::string>{"a"}}}};
    sdbus::createProxy(*m_bus, "org.tizen.ep-hotel-factory", "/org/tizen/ep_hotel_factory")
        ->callMethod(Applications::appControl)
        .onInterface(Applications::interface)
        .withArguments(request);
    EXPECT_TRUE(Says(standIn, R"(org.tizen.ep-hotel-factory AppControl "cmd"="show\n" "rows"=["a"])"));

    Call("org.tizen.wizard", "Terminate");
    EXPECT_THROW(Call("org.tizen.wizard", "Pause"), sdbus::Error) << "nobody has the name any more";
    Call("org.tizen.ep-hotel-factory", "Terminate");
    EXPECT_EQ(standIn.Status(), 0);
}

TEST_F(StandInTest, NameThatIsTakenIsLeftAlone)
{
    const Process first = StandFor("org.tizen.wizard");
    ASSERT_TRUE(Says(first, "stands ready"));
    EXPECT_EQ(StandFor("org.tizen.wizard").Status(), 69);
    EXPECT_NO_THROW(Call("org.tizen.wizard", "Resume"));
}
