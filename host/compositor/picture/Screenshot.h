/** Exact pictures of what is on the output, as PNG files. The compositor must draw with pixman. */
#pragma once

#include "weston/Listener.h"

#include <functional>
#include <list>
#include <memory>
#include <string>

namespace veskar
{

class Screenshots
{
public:
    /** Called once, with an error message, or with an empty text on success. */
    using Done = std::function<void(const std::string& error)>;

    explicit Screenshots(weston_compositor* compositor) : m_compositor(compositor) {}
    ~Screenshots();

    Screenshots(const Screenshots&) = delete;
    Screenshots& operator=(const Screenshots&) = delete;

    /** Draws a frame and writes it to `path`. The file appears there only when it is complete. */
    void Take(const std::string& path, Done done);

private:
    struct Pending
    {
        weston_output* output;
        std::string path;
        Done done;
        std::unique_ptr<Listener> frame;
        std::unique_ptr<Listener> outputGone;
    };

    void m_Finish(std::list<Pending>::iterator pending, const std::string& error);

    weston_compositor* m_compositor;
    std::list<Pending> m_pending;
};

} // namespace veskar
