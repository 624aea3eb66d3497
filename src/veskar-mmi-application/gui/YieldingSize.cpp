#include "YieldingSize.h"

#include "EflGuard.h"
#include "ScaledSize.h"

#include <algorithm>
#include <limits>

namespace VESKAR_APP
{

namespace
{

constexpr int UNLIMITED = std::numeric_limits<int>::max();
constexpr int LEAST = 160; // design pixels: three lines, an image to be recognised

struct Size
{
    int width;
    int height;
};

Size SizeOf(const Evas_Object* object)
{
    Size size{0, 0};
    evas_object_geometry_get(object, nullptr, nullptr, &size.width, &size.height);
    return size;
}

/** The largest of the widgets around `object`: one that cannot hold it all is larger than the window. */
Size SizeAround(const Evas_Object* object)
{
    Size largest{0, 0};
    for (object = elm_object_parent_widget_get(object); object != nullptr;
         object = elm_object_parent_widget_get(object))
    {
        const Size size = SizeOf(object);
        largest = {std::max(largest.width, size.width), std::max(largest.height, size.height)};
    }
    return largest;
}

int Lowered(int limit, int asked, int excess)
{
    return excess > 0 ? std::max(ScaledSize(LEAST), std::min(limit, asked) - excess) : limit;
}

} // namespace

YieldingSize::YieldingSize(Evas_Object* window)
    : m_window(window), m_beforeDrawing(nullptr), m_maxWidth(UNLIMITED), m_maxHeight(UNLIMITED), m_width(0), m_height(0)
{
    const MainLoopSection section;
    m_beforeDrawing = ecore_idle_enterer_add(s_OnRest, this);
    evas_object_event_callback_add(m_window, EVAS_CALLBACK_RESIZE, s_OnWindowResized, this);
    evas_object_event_callback_add(m_window, EVAS_CALLBACK_DEL, s_OnWindowDeleted, this);
}

YieldingSize::~YieldingSize()
{
    m_Stop();
}

void YieldingSize::m_Stop()
{
    if (m_window == nullptr)
    {
        return;
    }
    const MainLoopSection section;
    ecore_idle_enterer_del(m_beforeDrawing);
    evas_object_event_callback_del_full(m_window, EVAS_CALLBACK_RESIZE, s_OnWindowResized, this);
    evas_object_event_callback_del_full(m_window, EVAS_CALLBACK_DEL, s_OnWindowDeleted, this);
    m_window = nullptr;
}

void YieldingSize::Ask(Evas_Object* object, int width, int height)
{
    const auto same = [object](const Wish& wish)
    {
        return wish.object == object;
    };
    m_wishes.erase(std::remove_if(m_wishes.begin(), m_wishes.end(), same), m_wishes.end());
    m_wishes.push_back({object, width, height});
    m_width = 0;
    m_height = 0;
    m_Apply();
}

Eina_Bool YieldingSize::s_OnRest(void* data)
{
    auto* size = static_cast<YieldingSize*>(data);
    const MainLoopSection section;
    Evas* evas = evas_object_evas_get(size->m_window);
    evas_smart_objects_calculate(evas);
    // Only now has everything its place; what yields is laid out anew before the viewer sees it.
    while (size->m_Yield())
    {
        evas_smart_objects_calculate(evas);
    }
    return ECORE_CALLBACK_RENEW;
}

void YieldingSize::s_OnWindowResized(void* data, Evas* /*evas*/, Evas_Object* /*window*/, void* /*eventInfo*/)
{
    auto* size = static_cast<YieldingSize*>(data);
    size->m_maxWidth = UNLIMITED;
    size->m_maxHeight = UNLIMITED;
    size->m_width = 0;
    size->m_height = 0;
    size->m_Apply();
    // At once: the theme must not hear of a screen that is too large for now only, and keep it for one that stays so.
    s_OnRest(size);
}

void YieldingSize::s_OnWindowDeleted(void* data, Evas* /*evas*/, Evas_Object* /*window*/, void* /*eventInfo*/)
{
    static_cast<YieldingSize*>(data)->m_Stop();
}

bool YieldingSize::m_Yield()
{
    const MainLoopSection section;
    int widest = 0;
    int highest = 0;
    Size size{0, 0};
    for (const Wish& wish : m_wishes)
    {
        widest = std::max(widest, wish.width);
        highest = std::max(highest, wish.height);
        size = SizeAround(wish.object);
    }
    const Size room = SizeOf(m_window);
    const int maxWidth = Lowered(m_maxWidth, widest, size.width - room.width);
    const int maxHeight = Lowered(m_maxHeight, highest, size.height - room.height);
    const bool inVain = size.width == m_width && size.height == m_height;
    if (inVain || (maxWidth == m_maxWidth && maxHeight == m_maxHeight))
    {
        return false;
    }
    m_width = size.width;
    m_height = size.height;
    m_maxWidth = maxWidth;
    m_maxHeight = maxHeight;
    m_Apply();
    return true;
}

void YieldingSize::m_Apply() const
{
    const MainLoopSection section;
    for (const Wish& wish : m_wishes)
    {
        evas_object_size_hint_min_set(wish.object, std::min(wish.width, m_maxWidth),
                                      std::min(wish.height, m_maxHeight));
    }
}

} // namespace VESKAR_APP
