#pragma once

#include "BaseDisplay.h"

namespace VESKAR_APP
{

/** A message: a short text as a label, a long one in pages that Up and Down turn. */
class MessagePopup : public BaseDisplay
{
public:
    /** `text` is as received, not markup; with `noClose` every key but Up and Down is ignored. */
    MessagePopup(IUserInteraction& userInteraction, const std::string& title, const std::string& sub,
                 const std::string& text, const std::string& bottom, const std::vector<std::string>& buttons,
                 bool noClose, Evas_Object* mainWindow);
    ~MessagePopup() override = default;

protected:
    void t_OnKeyPressed(void* eventInfo) override;
    Evas_Object* m_CreateWindowContent(Evas_Object* layout, Evas_Object* box) override;

private:
    Evas_Object* m_CreateTextLabel(const char* markup, Evas_Object* parent);
    Evas_Object* m_CreateTextPage(const char* markup, Evas_Object* parent);
    Evas_Object* m_AddTextPageObj(Evas_Object* parent);

    Evas_Object* m_content;
    std::string m_text;
    bool m_noClose;
};

} // namespace VESKAR_APP
