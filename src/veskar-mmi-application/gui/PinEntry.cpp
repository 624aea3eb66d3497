#include "PinEntry.h"

#include "EflGuard.h"
#include "Log.h"

#include <string_view>

#include <IVesKarController.h>

namespace VESKAR_APP
{

namespace
{

constexpr unsigned char PIN_LENGTH = 4;
constexpr double UPPER_QUARTER = 0.25;

bool IsDigit(std::string_view key)
{
    return key.size() == 1 && key.front() >= '0' && key.front() <= '9';
}

} // namespace

const std::string PinEntry::KEY_BACKSPACE = "BackSpace";
const std::string PinEntry::KEY_MORE_123 = "XF86More";

PinEntry::PinEntry(IUserInteraction& userInteraction, const std::string& title, const std::string& /*sub*/,
                   const std::string& bottom, unsigned char /*pinLength*/, const std::string& extra,
                   Evas_Object* mainWindow)
    : BaseDisplay(userInteraction, mainWindow, {}, POPUP_STYLE, true), m_pinWidget(nullptr), m_pinLength(PIN_LENGTH),
      m_numPadShown(false)
{
    LOG_ENTRY();
    t_SetTitle(title);
    // What to do stands above the field and what is left to say below it; there is no line for the subtitle proper.
    t_SetSubtitle(bottom);
    t_SetBottomText(extra);
    if (VESKAR_API::IVesKarController::Instance() == nullptr)
    {
        LOG_WARN("Getting VesKar controller failed");
    }
}

Evas_Object* PinEntry::m_CreateWindowContent(Evas_Object* parent, Evas_Object* /*box*/)
{
    m_pinWidget = EFL_GUARD(ea_pin_add, parent, m_pinLength, s_OnPinEntered, nullptr);
    if (m_pinWidget == nullptr)
    {
        LOG_ERROR("Pin entry UI cannot be added.");
        return nullptr;
    }
    {
        const MainLoopSection section;
        evas_object_size_hint_align_set(m_pinWidget, EVAS_HINT_FILL, UPPER_QUARTER);
        evas_object_size_hint_weight_set(m_pinWidget, EVAS_HINT_EXPAND, EVAS_HINT_EXPAND);
        evas_object_smart_callback_add(m_pinWidget, "clicked", s_OnEntryClicked, this);
        evas_object_event_callback_add(m_pinWidget, EVAS_CALLBACK_KEY_DOWN, s_OnContentEntered, this);
        ea_pin_reset(m_pinWidget);
    }
    t_SetTTSText("", nullptr);
    return m_pinWidget;
}

bool PinEntry::t_Show()
{
    LOG_ENTRY();
    if (m_pinWidget != nullptr)
    {
        const MainLoopSection section;
        evas_object_show(m_pinWidget);
        elm_object_focus_set(m_pinWidget, EINA_TRUE);
    }
    return BaseDisplay::t_Show();
}

bool PinEntry::t_Hide()
{
    LOG_ENTRY();
    if (m_pinWidget != nullptr)
    {
        EFL_GUARD(evas_object_hide, m_pinWidget);
    }
    t_HideNumPad();
    const bool hidden = BaseDisplay::t_Hide();
    m_ForgetPin();
    return hidden;
}

void PinEntry::m_ForgetPin()
{
    Wipe(m_digits);
    m_digits.clear();
    if (m_pinWidget != nullptr)
    {
        EFL_GUARD(ea_pin_reset, m_pinWidget);
    }
}

void PinEntry::t_OnButtonClicked(unsigned char /*button*/)
{
    LOG_ENTRY();
}

void PinEntry::t_OnKeyPressed(void* event)
{
    LOG_ENTRY();
    // The field has handled this key already, so the digits are complete with the press that brings the last one.
    if (m_digits.size() >= m_pinLength)
    {
        const SecretText pin({std::string_view(m_digits.data(), m_digits.size())});
        t_PinEnteredCallback(pin.Get());
    }
    BaseDisplay::t_OnKeyPressed(event);
}

void PinEntry::m_ContentEntered(void* eventInfo)
{
    const std::string_view key = static_cast<Evas_Event_Key_Down*>(eventInfo)->key;
    if (IsDigit(key))
    {
        const SecretText line({"Number [", key, "] pressed!"});
        VESKAR_LOG_TEXT(DLOG_INFO, VESKAR_LOG_GREEN, line.Get().c_str());
        m_digits.push_back(key.front());
    }
    else if (key == KEY_BACKSPACE && !m_digits.empty())
    {
        LOG_INFO("Backspace pressed. Removing the last digit.");
        explicit_bzero(&m_digits.back(), 1);
        m_digits.pop_back();
    }
    else if (key == KEY_MORE_123)
    {
        LOG_INFO("More or 123 key pressed. Launching key pad if smart remote is detected.");
        t_ShowNumPad(false);
    }
    else
    {
        LOG_INFO("Key input " << key << " not handled.");
    }
}

void PinEntry::s_OnContentEntered(void* data, Evas* /*evas*/, Evas_Object* /*object*/, void* eventInfo)
{
    LOG_ENTRY();
    if (data == nullptr)
    {
        LOG_ERROR("pthis == NULL");
        return;
    }
    static_cast<PinEntry*>(data)->m_ContentEntered(eventInfo);
}

void PinEntry::s_OnEntryClicked(void* data, Evas_Object* /*object*/, void* /*eventInfo*/)
{
    LOG_ENTRY();
    if (data == nullptr)
    {
        LOG_ERROR("pthis == NULL");
        return;
    }
    EFL_GUARD(elm_object_focus_set, static_cast<PinEntry*>(data)->m_pinWidget, EINA_TRUE);
}

void PinEntry::s_OnPinEntered(Ea_Pin* pin)
{
    LOG_INFO("PIN entered.");
    if (pin == nullptr)
    {
        return;
    }
    SecretCharacters text(PIN_LENGTH + 1, '\0');
    EFL_GUARD(ea_pin_get_text, pin, text.data(), static_cast<int>(text.size()));
    const SecretText line({"PIN entered is ", text.data()});
    VESKAR_LOG_TEXT(DLOG_INFO, VESKAR_LOG_GREEN, line.Get().c_str());
}

} // namespace VESKAR_APP
