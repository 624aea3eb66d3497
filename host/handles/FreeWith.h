/** Makes a std::unique_ptr the owner of what a C function hands out: it is freed with the C function that belongs to
 * it. */
#pragma once

namespace veskar
{

/** For `std::unique_ptr<T, FreeWith<t_free>>`. What `Free` returns is ignored. */
template <auto Free>
struct FreeWith
{
    template <typename T>
    void operator()(T* handle) const
    {
        Free(handle);
    }
};

} // namespace veskar
