// The TV around the application: its settings, its other applications, its menu.

#include "Tv.h"

#include <filesystem>
#include <fstream>

namespace
{

void Set(const std::string& key, const std::string& value)
{
    RunCommand({"veskar-setting", "set", key, value});
}

} // namespace

class Surroundings : public TvTest
{
protected:
    void TearDown() override
    {
        Set("db/menu_widget/orientation", "0");
        Set("db/menu/system/accessibility/focuszoom", "0");
    }
};

TEST_F(Surroundings, DirectionAndLanguageReachTheRunningApplication)
{
    Process leftToRight = SendMessage(7, 255, {"--button", "Yes", "--button", "No"});
    const Picture before = StillShot();
    Set("db/menu_widget/orientation", "1");
    EXPECT_TRUE(WaitUntil([this] { return CountInLog("Config mirroring set to EINA_TRUE") == 1; }));
    Set("db/menu_widget/language", "ko_KR.UTF-8");
    EXPECT_TRUE(WaitUntil([this] { return CountInLog("Setting lang set ko_KR.UTF-8") > 0; }));

    // Yes, the first button, is now the right one.
    Process rightToLeft = SendMessage(8, 255, {"--button", "Yes", "--button", "No"});
    ChangedShot(before);
    Press({"Left", "Return"});
    ExpectAnswer(rightToLeft, Answer(8, 255, 0, 2, 0));
}

TEST_F(Surroundings, EnlargedTextLeavesTheShownScreenAndItsLogAloneAndBelongsToTheNext)
{
    Process shown = SendMessage(7, 255, {"--button", "OK"});
    const Picture before = StillShot();
    Set("db/menu/system/accessibility/focuszoom", "1");
    EXPECT_TRUE(StillShot() == before) << "the shown screen changes";
    EXPECT_EQ(CountInLog("could not be resolved"), 0) << "the toolkit is asked for what its objects do not have";
    Process next = SendMessage(8, 255, {"--button", "OK"});
    const Picture followed = ChangedShot(before);
    EndApplication();
    Process fresh = SendMessage(9, 255, {"--button", "OK"});
    EXPECT_TRUE(StillShot() == followed) << "not all of it is enlarged";
}

TEST_F(Surroundings, TheScreenIsRaisedAboveTheSetupWizard)
{
    const std::string raised = "Adjusting the Kavro UI layer";
    Process alone = SendMessage(7, 255);
    EXPECT_EQ(CountInLog(raised), 0);
    Process setup = StandFor("org.tizen.wizard");
    ASSERT_TRUE(setup.Says("stands ready"));
    Process above = SendMessage(8, 255);
    EXPECT_EQ(CountInLog(raised), 1);
}

TEST_F(Surroundings, NoDaemonOfADesktopRunsBesideTheScreens)
{
    Process request = SendMessage(7, 255);
    StillShot();
    const std::string inThisTv = "VESKAR_TV_DIR=" + Environment("VESKAR_TV_DIR");
    const std::string daemons =
        RunCommand({"sh", "-c",
                    "grep -lszxF \"$0\" /proc/[0-9]*/environ | while read -r f; do cat \"${f%environ}comm\" || :; done",
                    inThisTv});
    EXPECT_NE(daemons.find("veskar-app\n"), std::string::npos);
    EXPECT_EQ(daemons.find("efreetd"), std::string::npos) << daemons;
}

TEST_F(Surroundings, WithoutACompositorTheSenderIsToldAtOnceAndNoProcessStays)
{
    const auto startOn = [this](const std::string& compositor)
    {
        sdbus::createProxy(*m_bus, "org.freedesktop.DBus", "/org/freedesktop/DBus")
            ->callMethod("UpdateActivationEnvironment")
            .onInterface("org.freedesktop.DBus")
            .withArguments(std::map<std::string, std::string>{{"WAYLAND_DISPLAY", compositor}});
    };
    startOn("nowhere");
    Process request({"veskar-mw", "--source-id", "254", "message"});
    EXPECT_EQ(request.Status(), 69);
    startOn(Environment("WAYLAND_DISPLAY"));
    EXPECT_EQ(request.Output(), "");
    EXPECT_EQ(CountInLog("no compositor at WAYLAND_DISPLAY=nowhere"), 3) << "process, refused sender and middleware";
    EXPECT_TRUE(WaitForApplicationEnd());
}

TEST_F(Surroundings, AMenuPositionReachesTheMiddleware)
{
    EXPECT_EQ(RunCommand({"veskar-mw", "menu", "veskar_delete_op"}),
              "{\"task\":\"name:menu \",\"action\":\"stop\"}\n{\"menuPosition\":3}\n");
}

TEST_F(Surroundings, ATvIsPutWhereThereIsRoomAndAScreenNeedsNoneOnADisk)
{
    const std::string small = Environment("XDG_RUNTIME_DIR") + "/small";
    std::filesystem::create_directory(small);
    const auto onDiskOf = [&small](const std::string& size, const std::string& command)
    {
        return Process({"unshare", "--user", "--map-current-user", "--keep-caps", "--mount", "sh", "-c",
                        "mount -t tmpfs -o size=" + size + " tmpfs " + small + " && " + command});
    };
    if (onDiskOf("2m", "true").Status() != 0)
    {
        GTEST_SKIP() << "no disk can be made here";
    }
    Process tv = onDiskOf("2m", "TMPDIR=" + small + " veskar-tv -- sh -c 'echo $VESKAR_TV_DIR' 2>&1");
    EXPECT_EQ(tv.Status(), 0);
    EXPECT_NE(tv.Output().find(small + " has 2 MiB left"), std::string::npos) << tv.Output();
    EXPECT_EQ(tv.Output().find(small + "/"), std::string::npos) << tv.Output();

    const std::string start = "WAYLAND_DISPLAY=$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY XDG_RUNTIME_DIR=" + small +
                              " && head -c 9m /dev/zero >$XDG_RUNTIME_DIR/other; exec " VESKAR_APPLICATION_PROGRAM
                              " 2>>\"$VESKAR_TV_LOG\"";
    Process application = onDiskOf("2m", start);
    ASSERT_TRUE(WaitUntil([this] { return IsApplicationRunning(); }));
    Process shown = SendMessage(7, 255, {"--button", "OK"});
    Press({"Return"});
    ExpectAnswer(shown, Answer(7, 255, 0, 1, 0));
    EndApplication();
    EXPECT_EQ(application.Status(), 0);
}

TEST_F(Surroundings, ACommandInATvFindsABusThatWasSlowToListen)
{
    const std::string folder = Environment("XDG_RUNTIME_DIR");
    const std::string slowBus = folder + "/dbus-daemon";
    std::ofstream(slowBus)
        << "#!/bin/sh\n"
           "bus=$(sed -n 's/.*unix:path=\\(.*\\)<.*/\\1/p' \"${1#*=}\")\n"
           "perl -MSocket -e 'socket S, PF_UNIX, SOCK_STREAM, 0; bind S, sockaddr_un(shift)' \"$bus\"\n"
           "sleep 0.5\n"
           "exec /usr/bin/dbus-daemon \"$@\"\n";
    std::filesystem::permissions(slowBus, std::filesystem::perms::owner_all);
    Process tv({"env", "PATH=" + folder + ":" + Environment("PATH"), "veskar-tv", "--", "veskar-mw", "sequence"});
    EXPECT_EQ(tv.Status(), 0);
}

TEST_F(Surroundings, AnyPictureCanBeTheProgrammeBehind)
{
    const Picture evening = Shot();
    const std::string file = Environment("XDG_RUNTIME_DIR") + "/evening.png";
    RunCommand({"veskar-remote", "shot", file});
    RunCommand({"veskar-remote", "backdrop", "snow"});
    const Picture snow = Shot();
    EXPECT_NE(snow, evening);

    Process noPicture({"veskar-remote", "backdrop", "/dev/null"});
    EXPECT_EQ(noPicture.Status(), 64);
    EXPECT_EQ(Shot(), snow);

    RunCommand({"veskar-remote", "backdrop", file});
    EXPECT_EQ(Shot(), evening);
}

TEST_F(Surroundings, WhoWatchesTheBusHearsOfEachScreen)
{
    namespace Applications = veskar::Applications;
    const Process watcher({"dbus-monitor", std::string("interface='") + Applications::SCREEN_INTERFACE + "'"});
    ASSERT_TRUE(watcher.Says("member=NameLost"));
    Process message = Send({"message", "--ui-id", "7", "--title", "A & B"});
    RunCommand({"veskar-remote", "wait", "--text", "A & B", "--ui-id", "7"});
    Process noSuchText({"veskar-remote", "wait", "--text", "^B", "--timeout", "0.1"});
    EXPECT_EQ(noSuchText.Status(), 3);
    EXPECT_TRUE(
        watcher.Says("member=Shown\n   int32 7\n   byte 255\n   string \"ui_type_message\"\n   string \"A & B\"\n"));

    Process pin = Send({"pin", "--ui-id", "8", "--source-id", "5", "--title", "PIN"});
    EXPECT_TRUE(watcher.Says("member=Closed\n   int32 7\n   byte 255\n"));
    RunCommand({"veskar-remote", "wait", "--text", "PIN", "--ui-id", "8"});
    Press({"9", "8", "7"});
    const auto application =
        sdbus::createProxy(*m_bus, Applications::DIALOGUES, veskar::PathOf(Applications::DIALOGUES));
    const auto property = [&](const std::string& name)
    {
        return application->getProperty(name).onInterface(Applications::SCREEN_INTERFACE);
    };
    EXPECT_EQ(property(Applications::TEXT).get<std::string>().find_first_of("987"), std::string::npos);
    EXPECT_EQ(property("Kind").get<std::string>() + property("Title").get<std::string>(), "ui_type_pin_entryPIN");
    EXPECT_THAT(property("HeldKeys").get<Words>(), testing::Contains("XF86Exit"));
    Press({"6"});
    EXPECT_TRUE(watcher.Says("member=Closed\n   int32 8\n   byte 5\n"));
}
