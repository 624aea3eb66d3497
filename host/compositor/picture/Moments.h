/**
 * When something happened on the TV, for measurements: times of CLOCK_MONOTONIC, taken where it happened.
 *
 * Nothing is recorded before the first Take, so that a TV which nobody measures does no work for it.
 */
#pragma once

#include "weston/Listener.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace veskar
{

class Moments
{
public:
    /** The compositor must outlive this object. */
    explicit Moments(weston_compositor* compositor);
    ~Moments();

    Moments(const Moments&) = delete;
    Moments& operator=(const Moments&) = delete;

    /** Call it just before the key goes to the seat. */
    void Key(const std::string& name);

    /**
     * What was recorded since the last call, in order, one line each, the time in nanoseconds first:
     *
     *     TIME commit PID content|none  a window's new content has arrived; none: it has nothing to show
     *     TIME frame HASH               an output has been drawn; equal hashes: lines across it look the same
     *     TIME key NAME
     *     lost COUNT                       in the last line: events after the others, for which there was no room
     */
    std::vector<std::string> Take();

private:
    void m_Watch(weston_surface* surface);
    void m_WatchOutput();
    void m_Committed(weston_surface* surface);
    void m_Drawn(weston_output* output);
    void m_Record(const std::string& time, const std::string& what);

    weston_compositor* m_compositor;
    bool m_recording = false;
    std::vector<std::string> m_lines;
    size_t m_lost = 0;
    Listener m_surfaceCreated;
    std::unique_ptr<Listener> m_drawn;
    std::unique_ptr<Listener> m_outputGone;

    struct Watched
    {
        std::unique_ptr<Listener> committed;
        std::unique_ptr<Listener> destroyed;
    };
    std::map<weston_surface*, Watched> m_watched;
};

} // namespace veskar
