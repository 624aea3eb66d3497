/** A surface that may be destroyed by its client at any time: the reference is then null. */
#pragma once

#include "Listener.h"

#include <memory>

namespace veskar
{

class SurfaceRef
{
public:
    SurfaceRef() = default;
    SurfaceRef(const SurfaceRef&) = delete;
    SurfaceRef& operator=(const SurfaceRef&) = delete;

    void Set(weston_surface* surface)
    {
        m_surface = surface;
        m_gone.reset();
        if (surface != nullptr)
        {
            m_gone = std::make_unique<Listener>(surface->destroy_signal, [this](void*) { Set(nullptr); });
        }
    }

    weston_surface* Get() const { return m_surface; }

private:
    weston_surface* m_surface = nullptr;
    std::unique_ptr<Listener> m_gone;
};

} // namespace veskar
