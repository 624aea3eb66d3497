// The voice of a progress bar: its value, each time that it has changed by ten per cent, and at its end.

#include "VoiceGuide.h"
#include "Words.h"
#include "toolkit/Callback.h"

#include <cmath>
#include <cstdlib>

namespace veskar
{
namespace
{

constexpr int STEP = 10;
constexpr int END = 100;

/** Lives with its bar. */
class SpokenProgress
{
public:
    explicit SpokenProgress(Evas_Object* bar)
        : m_bar(bar), m_changed(bar, "changed", CallSmart<&SpokenProgress::m_OnChanged>, this)
    {
    }

private:
    void m_OnChanged(void* /*info*/)
    {
        const int value = static_cast<int>(std::lround(elm_progressbar_value_get(m_bar) * END));
        const bool isNews = std::abs(value - m_said) >= STEP || (value == END && m_said != END);
        // The value with which a screen opens is no change.
        const bool isSeen = evas_object_visible_get(m_bar);
        m_said = isNews || !isSeen ? value : m_said;
        if (isNews && isSeen)
        {
            VoiceGuide::TheOne().SpeakNews(Percent(value));
        }
    }

    Evas_Object* m_bar;
    int m_said = 0;
    SmartCallback m_changed;
};

} // namespace
} // namespace veskar

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C"
{
    Evas_Object* __real_elm_progressbar_add(Evas_Object* parent);

    Evas_Object* __wrap_elm_progressbar_add(Evas_Object* parent)
    {
        Evas_Object* bar = __real_elm_progressbar_add(parent);
        if (bar != nullptr)
        {
            veskar::LiveWith<veskar::SpokenProgress>(bar, bar);
        }
        return bar;
    }
}
// NOLINTEND(bugprone-reserved-identifier)
