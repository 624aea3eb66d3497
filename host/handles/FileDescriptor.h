/** The owner of an open file, socket or the like. */
#pragma once

#include <utility>

#include <unistd.h>

namespace veskar
{

class FileDescriptor
{
public:
    FileDescriptor() = default;
    /** Negative, as from a call that failed: nothing is owned. */
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    ~FileDescriptor() { Close(); }

    FileDescriptor(FileDescriptor&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, NONE)) {}
    FileDescriptor& operator=(FileDescriptor&&) = delete;

    explicit operator bool() const { return m_descriptor >= 0; }
    int Get() const { return m_descriptor; }

    /** Hands the descriptor over to a function that closes it. */
    int Release() { return std::exchange(m_descriptor, NONE); }

    void Close()
    {
        if (m_descriptor >= 0)
        {
            close(Release());
        }
    }

private:
    static constexpr int NONE = -1;

    int m_descriptor = NONE;
};

} // namespace veskar
