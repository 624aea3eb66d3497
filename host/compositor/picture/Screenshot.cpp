#include "Screenshot.h"

#include "PngFile.h"
#include "weston/Outputs.h"

namespace veskar
{

namespace
{

std::string WriteFrame(weston_output* output, const std::string& path)
{
    Picture picture;
    picture.width = static_cast<uint32_t>(output->current_mode->width);
    picture.height = static_cast<uint32_t>(output->current_mode->height);
    picture.pixels.resize(static_cast<size_t>(picture.width) * picture.height);
    if (output->compositor->renderer->read_pixels(output, PIXMAN_x8b8g8r8, picture.pixels.data(), 0, 0, picture.width,
                                                  picture.height) < 0)
    {
        return "the output cannot be read";
    }
    return WritePng(picture, path);
}

} // namespace

Screenshots::~Screenshots()
{
    for (Pending& pending : m_pending)
    {
        weston_output_disable_planes_decr(pending.output);
    }
}

void Screenshots::Take(const std::string& path, Done done)
{
    weston_output* output = FirstOutput(m_compositor);
    if (output == nullptr)
    {
        done("there is no output");
        return;
    }
    m_pending.push_back({output, path, std::move(done), nullptr, nullptr});
    const auto pending = std::prev(m_pending.end());
    pending->frame = std::make_unique<Listener>(output->frame_signal, [this, pending](void*)
                                                { m_Finish(pending, WriteFrame(pending->output, pending->path)); });
    pending->outputGone = std::make_unique<Listener>(output->destroy_signal, [this, pending](void*)
                                                     { m_Finish(pending, "the output went away"); });
    weston_output_disable_planes_incr(output);
    weston_output_damage(output);
}

void Screenshots::m_Finish(std::list<Pending>::iterator pending, const std::string& error)
{
    weston_output_disable_planes_decr(pending->output);
    const Done done = std::move(pending->done);
    m_pending.erase(pending);
    done(error);
}

} // namespace veskar
