#pragma once

#include "BaseDisplay.h"
#include "Secret.h"

#include <ea.h>

namespace VESKAR_APP
{

/** Asks for a PIN of four digits and reports it with the key press that completes it. */
class PinEntry : public BaseDisplay
{
public:
    /** `bottom` is shown as the subtitle and `extra` as the bottom line; `sub` and `pinLength` have no effect. */
    PinEntry(IUserInteraction& userInteraction, const std::string& title, const std::string& sub,
             const std::string& bottom, unsigned char pinLength, const std::string& extra, Evas_Object* mainWindow);
    ~PinEntry() override = default;

protected:
    bool t_Show() override;
    bool t_Hide() override;
    void t_OnKeyPressed(void* event) override;
    void t_OnButtonClicked(unsigned char button) override;
    Evas_Object* m_CreateWindowContent(Evas_Object* parent, Evas_Object* box) override;

    static void s_OnPinEntered(Ea_Pin* pin);
    static void s_OnEntryClicked(void* data, Evas_Object* object, void* eventInfo);
    static void s_OnContentEntered(void* data, Evas* evas, Evas_Object* object, void* eventInfo);
    void m_ContentEntered(void* eventInfo);

    /** A hidden screen is kept until the next one comes; the digits, its own and the widget's, go at once. */
    void m_ForgetPin();

private:
    static const std::string KEY_BACKSPACE;
    static const std::string KEY_MORE_123;

    Evas_Object* m_pinWidget;
    unsigned char m_pinLength;
    SecretCharacters m_digits; // the PIN's only place but the widget: whatever else held a digit of it is overwritten
    [[maybe_unused]] bool m_numPadShown;
};

} // namespace VESKAR_APP
