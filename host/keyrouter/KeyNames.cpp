#include "KeyNames.h"

#include "XkbOffset.h"

#include <Ecore_Input.h>

namespace veskar
{

KeyNames::KeyNames() : m_filter(ecore_event_filter_add(nullptr, s_Rename, nullptr, this)) {}

KeyNames::~KeyNames()
{
    ecore_event_filter_del(m_filter);
}

Eina_Bool KeyNames::s_Rename(void* data, void*, int type, void* event)
{
    if (type != ECORE_EVENT_KEY_DOWN && type != ECORE_EVENT_KEY_UP)
    {
        return EINA_TRUE;
    }
    const std::map<uint32_t, std::string>& names = static_cast<KeyNames*>(data)->m_names;
    auto* key = static_cast<Ecore_Event_Key*>(event);
    const auto found = names.find(key->keycode - XKB_OFFSET);
    if (found != names.end())
    {
        key->key = key->keyname = found->second.c_str();
    }
    return EINA_TRUE;
}

} // namespace veskar
