#include "Moments.h"

#include "weston/Outputs.h"

#include <ctime>
#include <string_view>
#include <utility>

namespace veskar
{

namespace
{

/** A reply has to fit into a socket's buffer. */
constexpr size_t MOST_LINES = 2000;

/** Lines of the output that stand for the whole of it: no text is lower than their distance. Reading all takes longer
 * than drawing. */
constexpr int SAMPLED_LINES = 108;

std::string Now()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return std::to_string(int64_t{now.tv_sec} * 1'000'000'000 + now.tv_nsec);
}

size_t HashOf(weston_output* output)
{
    const auto width = static_cast<uint32_t>(output->current_mode->width);
    const auto height = static_cast<uint32_t>(output->current_mode->height);
    std::vector<uint32_t> line(width);
    size_t hash = 0;
    for (uint32_t i = 0; i < SAMPLED_LINES; ++i)
    {
        const uint32_t y = height * (2 * i + 1) / (2 * SAMPLED_LINES);
        output->compositor->renderer->read_pixels(output, PIXMAN_x8r8g8b8, line.data(), 0, y, width, 1);
        const std::string_view bytes(reinterpret_cast<const char*>(line.data()), line.size() * sizeof line[0]);
        hash = hash * 31 + std::hash<std::string_view>()(bytes);
    }
    return hash;
}

pid_t ProcessOf(const weston_surface* surface)
{
    pid_t pid = 0;
    wl_client_get_credentials(wl_resource_get_client(surface->resource), &pid, nullptr, nullptr);
    return pid;
}

} // namespace

Moments::Moments(weston_compositor* compositor)
    : m_compositor(compositor), m_surfaceCreated(compositor->create_surface_signal,
                                                 [this](void* data) { m_Watch(static_cast<weston_surface*>(data)); })
{
}

Moments::~Moments() = default;

void Moments::Key(const std::string& name)
{
    if (m_recording)
    {
        m_Record(Now(), "key " + name);
    }
}

std::vector<std::string> Moments::Take()
{
    if (!m_recording)
    {
        m_WatchOutput();
        m_recording = true;
    }
    if (m_lost != 0)
    {
        m_lines.push_back("lost " + std::to_string(m_lost));
        m_lost = 0;
    }
    return std::exchange(m_lines, {});
}

void Moments::m_Watch(weston_surface* surface)
{
    m_watched[surface] = {
        std::make_unique<Listener>(surface->commit_signal, [this, surface](void*) { m_Committed(surface); }),
        std::make_unique<Listener>(surface->destroy_signal, [this, surface](void*) { m_watched.erase(surface); })};
}

void Moments::m_WatchOutput()
{
    weston_output* output = FirstOutput(m_compositor);
    if (output == nullptr)
    {
        return;
    }
    m_drawn = std::make_unique<Listener>(output->frame_signal, [this, output](void*) { m_Drawn(output); });
    m_outputGone = std::make_unique<Listener>(output->destroy_signal,
                                              [this](void*)
                                              {
                                                  m_drawn.reset();
                                                  m_outputGone.reset();
                                              });
}

void Moments::m_Committed(weston_surface* surface)
{
    const std::string now = Now();
    if (m_recording && surface->resource != nullptr && weston_surface_is_desktop_surface(surface))
    {
        // Not whether it is mapped: the shell maps a window only after this signal.
        m_Record(now, "commit " + std::to_string(ProcessOf(surface)) +
                          (surface->width_from_buffer > 0 ? " content" : " none"));
    }
}

void Moments::m_Drawn(weston_output* output)
{
    const std::string now = Now();
    m_Record(now, "frame " + std::to_string(HashOf(output)));
}

void Moments::m_Record(const std::string& time, const std::string& what)
{
    if (m_lines.size() == MOST_LINES)
    {
        ++m_lost;
        return;
    }
    m_lines.push_back(time + " " + what);
}

} // namespace veskar
