#pragma once

#include "Process.h"
#include "TvBus.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <sdbus-c++/sdbus-c++.h>

/** The screen's pixels as a number: the compositor's pictures are exact, and a test only asks whether two are alike. */
using Picture = std::size_t;

/**
 * The started TV in which these tests run, used as a person would: requests through the middleware's tool, keys and
 * pictures through the remote control. Each test begins without a running application.
 */
class TvTest : public ::testing::Test
{
protected:
    TvTest();
    void SetUp() override;

    /**
     * Sends a request with `veskar-mw` and these arguments, and returns when the application has handled it. The
     * process waits for the answer.
     */
    Process Send(const Words& arguments);

    /** `Send` with a message that has these ids; more arguments may follow. */
    Process SendMessage(int uiId, int sourceId, const Words& more = {});

    /** Each key when somebody takes it. */
    static void Press(const Words& keys);

    /** Until the screen with this id has been drawn. */
    static void WaitForScreen(int uiId);

    /** The keys that a program (by default the application) holds at the compositor: key and mode. */
    std::map<std::string, std::string> Grabs(const std::string& program = "");

    /** Waits until the setting that tells whether the number pad is shown has this value. */
    static bool NumberPadIs(const std::string& value);
    static constexpr const char* PAD_SHOWN = "memory/function-osd/number_pad_show";

    Picture Shot();
    /** The picture once nothing moves any more. */
    Picture StillShot();
    /** The same, after the screen has changed from what it was. */
    Picture ChangedShot(const Picture& before);

    bool IsApplicationRunning() { return ApplicationPid() != 0; }
    /** 0 when it does not run. */
    unsigned ApplicationPid(const std::string& application = veskar::Applications::DIALOGUES);
    /** Ends the application as the TV would, and waits until it is gone. */
    void EndApplication();
    bool WaitForApplicationEnd()
    {
        return WaitUntil([this] { return !IsApplicationRunning(); });
    }

    /** What the TV says to an application: "Pause", "Resume" or "Terminate". */
    void Call(const std::string& method, const std::string& application = veskar::Applications::DIALOGUES);

    /** Owns the names of these applications and prints what they are asked, as long as the process lives. */
    static Process StandFor(const std::string& applications);

    /** What was written to the TV's log since the test began, and how many lines contain a text. */
    std::string Log() const;
    int CountInLog(const std::string& text) const;

    /** The middleware's call itself, for what the tool would not send; the error's name, or nothing. */
    std::string SendRaw(const std::map<std::string, sdbus::Variant>& values,
                        const std::string& application = veskar::Applications::DIALOGUES);

    std::unique_ptr<sdbus::IConnection> m_bus;

private:
    std::string m_logFile;
    std::streamoff m_logStart = 0;
};

/** The answer as `veskar-mw` prints it. */
std::string Answer(int uiId, int sourceId, int kind, int button, int item, const std::string& data = "");

/** Waits for this answer of a request, and for the exit status that belongs to it. */
void ExpectAnswer(Process& request, const std::string& answer);
