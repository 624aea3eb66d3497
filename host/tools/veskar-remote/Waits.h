/** What automation waits for, in place of sleeping. */
#pragma once

#include "RemoteClient.h"

#include <chrono>
#include <optional>
#include <regex>
#include <stdexcept>
#include <string>

namespace veskar
{

/** What was waited for did not come in time. The text says what. */
struct InVain : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/** Each function throws InVain after `patience`, beside what RemoteClient throws. */
class Waits
{
public:
    /** `remote` must outlive this object, and is of no more use after an InVain. */
    Waits(RemoteClient& remote, std::chrono::milliseconds patience);

    /** Presses the key until somebody takes it. */
    void Press(const std::string& key);

    /** Until a screen has been drawn; with an id, that one. */
    void Shown(std::optional<int> uiId);

    /**
     * Until a screen, with an id that one, has been drawn and `pattern` is found in what the voice guide was handed
     * for it. Throws NoBus beside the others.
     */
    void Text(const std::regex& pattern, std::optional<int> uiId);

    /** Until there is no screen; with an id, not that one. */
    void Gone(std::optional<int> uiId);

    /** Until what is on the display stays the same. */
    void Still();

private:
    template <typename Done>
    void m_Until(const std::string& what, Done done);

    bool m_IsShown(std::optional<int> uiId);

    RemoteClient& m_remote;
    std::chrono::milliseconds m_patience;
};

} // namespace veskar
