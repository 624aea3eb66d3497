#include "ScreenNews.h"

#include "keyguard/OwnScreen.h"

namespace veskar
{

namespace
{

/** A program that is linked with this room has screens. Until the first one is there, no key is meant for it. */
struct Announcement
{
    Announcement() { OwnScreen::Instance().Keys().ExpectScreens(); }
};

const Announcement ANNOUNCEMENT;

} // namespace

ScreenNews::ScreenNews(Evas_Object* popup)
    : m_canvas(evas_object_evas_get(popup)),
      m_shown(popup, EVAS_CALLBACK_SHOW, CallEvent<&ScreenNews::m_OnShown>, this),
      m_hidden(popup, EVAS_CALLBACK_HIDE, CallEvent<&ScreenNews::m_OnHidden>, this)
{
}

ScreenNews::~ScreenNews()
{
    m_OnHidden();
}

void ScreenNews::m_OnShown()
{
    if (m_isShown)
    {
        return;
    }
    m_isShown = true;
    OwnScreen::Instance().Comes();
    evas_event_callback_add(m_canvas, EVAS_CALLBACK_RENDER_POST, s_OnDrawn, this);
}

void ScreenNews::m_OnHidden()
{
    if (!m_isShown)
    {
        return;
    }
    m_isShown = false;
    m_AwaitNoFrame();
    OwnScreen::Instance().Goes();
}

void ScreenNews::m_AwaitNoFrame()
{
    evas_event_callback_del_full(m_canvas, EVAS_CALLBACK_RENDER_POST, s_OnDrawn, this);
}

void ScreenNews::s_OnDrawn(void* self, Evas*, void*)
{
    static_cast<ScreenNews*>(self)->m_AwaitNoFrame();
    OwnScreen::Instance().IsDrawn();
}

} // namespace veskar
