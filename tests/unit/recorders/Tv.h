/**
 * The TV that the tests run on: it is behind the platform's C functions, and behind the few toolkit functions whose
 * effect cannot be seen without a compositor. It behaves as the test has set it and remembers what the application did.
 */
#pragma once

#include <functional>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "appfw/AppControl.h"

#include <Elementary.h>
#include <app.h>
#include <dlog.h>
#include <ecore_wayland.h>

using Texts = std::vector<std::string>;

/** The texts of both. */
Texts operator+(Texts first, const Texts& second);

struct LogLine
{
    int priority;
    std::string text; // as printed, colours included
};

struct Tv
{
    // What the test sets. A key that is absent is unset on the TV.
    std::map<std::string, int> numbers;
    std::map<std::string, std::string> texts;
    std::map<std::string, bool> features;
    std::set<std::string> runningApps;
    std::set<std::string> failing;                     // names of functions that fail, and keys that have no value
    std::set<std::pair<std::string, int>> refusedKeys; // key and mode, held by somebody else
    int orientation = 0;
    bool hasController = true;
    bool hasWaylandDisplay = true;
    std::vector<Ecore_Wl2_Global> globals{{"wl_seat", 3, 7, nullptr}, {"tizen_keyrouter", 42, 1, nullptr}};
    int loopResult = APP_ERROR_NONE;
    std::function<void()> whileTheLoopRuns = [] {
    };

    // What the application did.
    Texts deeds;              // in order, each as "verb arguments"
    std::vector<LogLine> log; // written by the timers' threads too, hence the mutex
    static inline std::mutex logMutex;
    std::set<std::pair<std::string, int>> heldKeys; // key and mode
    int liveRequests = 0;
    std::size_t linesBeforeDestroyed = 0; // of the log, when the last request was destroyed
    Evas_Object* window = nullptr;
    ui_app_lifecycle_callback_s application{};
    void* applicationData = nullptr;
    app_event_cb languageChanged = nullptr;
    std::map<const Evas_Object*, int> currentPages; // of the text pages; each has three
    std::string pageText;
    std::string pageStyle;

    bool Fails(const char* function) const { return failing.count(function) != 0; }

    /** The deeds with this verb, in order. */
    Texts Did(const std::string& verb) const;
    /** All deeds in order, with each run of keys of one group as one: "grab navigation", "release channel" ... */
    Texts DeedsByKeyGroup() const;
    void Forget();

    /** Whether exactly this text was logged at this priority, whatever its colour. */
    bool Logged(int priority, const std::string& text) const;
    /** The non-empty texts of one priority, in order. */
    Texts Log(int priority) const;
};

/** A new TV for each test. */
extern Tv tv;
