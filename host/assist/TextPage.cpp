#include "CString.h"
#include "PageWidth.h"
#include "VoiceGuide.h"
#include "Words.h"
#include "ea.h"
#include "toolkit/SizeHints.h"
#include "toolkit/ThemeSizes.h"
#include "toolkit/Words.h"

#include <Ecore.h>
#include <algorithm>
#include <climits>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace veskar
{
namespace
{

constexpr char DATA_KEY[] = "veskar_text_page";

struct FreeStyle
{
    void operator()(Evas_Textblock_Style* style) const { evas_textblock_style_free(style); }
};

using StyleHandle = std::unique_ptr<Evas_Textblock_Style, FreeStyle>;

std::string Replaced(std::string text, std::string_view from, std::string_view to)
{
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    {
        text.replace(at, from.size(), to);
    }
    return text;
}

/** A tab, wrapped in a text of both directions, can keep the toolkit busy for ever; a wide space does as well. */
std::string WithoutTabs(std::string markup)
{
    return Replaced(std::move(markup), "<tab/>", "\u2003");
}

/**
 * A TV's toolkit does unasked what this one does on request: it aligns each paragraph by its own direction, and
 * breaks a word that is wider than the page, as a sentence in Thai is, instead of cutting it off.
 */
void Adapt(Evas_Textblock_Style* style)
{
    const char* given = evas_textblock_style_get(style);
    std::string adapted = Replaced(given ? given : "", "align=mixed", "align=auto");
    adapted = Replaced(std::move(adapted), "wrap=word", "wrap=mixed");
    evas_textblock_style_set(style, adapted.c_str());
}

/**
 * The lines of a textblock, top to bottom. Asking for a line by its number counts the paragraphs above it each time, so
 * the first line of each paragraph, most lines of a text that is nothing but line breaks, comes from a cursor.
 */
class LineWalk
{
public:
    explicit LineWalk(const Evas_Object* text)
        : m_text(text), m_cursor(evas_object_textblock_cursor_new(text)), m_head(m_ReadHead())
    {
    }

    /** False after the last line; `top` and `height` are in pixels. */
    bool Next(int& top, int& height)
    {
        const int line = m_line++;
        if (line > m_head)
        {
            m_head = evas_textblock_cursor_paragraph_next(m_cursor.get()) ? m_ReadHead() : INT_MAX;
        }
        if (line != m_head)
        {
            return evas_object_textblock_line_number_geometry_get(m_text, line, nullptr, &top, nullptr, &height);
        }
        top = m_top;
        height = m_height;
        return true;
    }

private:
    struct FreeCursor
    {
        void operator()(Evas_Textblock_Cursor* cursor) const { evas_textblock_cursor_free(cursor); }
    };

    int m_ReadHead()
    {
        return evas_textblock_cursor_line_geometry_get(m_cursor.get(), nullptr, &m_top, nullptr, &m_height);
    }

    const Evas_Object* m_text;
    std::unique_ptr<Evas_Textblock_Cursor, FreeCursor> m_cursor;
    int m_top = 0;
    int m_height = 0;
    int m_line = 0;
    int m_head; // the number of the line that the cursor is on
};

/** A plain container that moves, shows and clips what is in it; the toolkit has none that leaves sizes alone. */
Evas_Object* AddCanvas(Evas* evas)
{
    static Evas_Smart* const smart = []
    {
        static Evas_Smart_Class definition = EVAS_SMART_CLASS_INIT_NAME_VERSION("veskar_text_canvas");
        evas_object_smart_clipped_smart_set(&definition);
        return evas_smart_class_new(&definition);
    }();
    return evas_object_smart_add(evas, smart);
}

/**
 * A text in a scroller, shown page by page. The scroller's content is as many views high as there are pages; the text
 * is moved along with the page shown and clipped to that page's own lines, so that no line is ever cut in half.
 * Lives on the scroller as its data and is deleted with it.
 */
class TextPage
{
public:
    explicit TextPage(Evas_Object* scroller);
    ~TextPage();
    TextPage(const TextPage&) = delete;
    TextPage& operator=(const TextPage&) = delete;

    static TextPage* Of(const Evas_Object* object)
    {
        return static_cast<TextPage*>(evas_object_data_get(object, DATA_KEY));
    }

    void SetText(const char* markup);
    void SetStyle(StyleHandle style);
    void Show(int page);
    int Current() const { return m_current; }
    int Total() const { return static_cast<int>(m_pages.size()); }

private:
    struct Page
    {
        int top;
        int height;
    };

    static void s_OnResize(void* data, Evas* evas, Evas_Object* object, void* event);
    static void s_OnDeletion(void* data, Evas* evas, Evas_Object* object, void* event);
    static void s_OnJob(void* data);
    void m_UpdateLater();
    void m_Fit();
    void m_Update();
    std::vector<Page> m_BreakIntoPages() const;
    void m_SetLeastHeight();
    void m_MakeRoomForNumber();
    void m_Place();
    void m_Indicate();

    Evas_Object* m_scroller;
    Evas_Object* m_content;
    Evas_Object* m_text;
    Evas_Object* m_clip;
    StyleHandle m_style;
    std::vector<Page> m_pages;
    int m_viewWidth = 0;
    int m_viewHeight = 0;
    Across m_textAcross{};
    int m_textHeight = 0;
    int m_current = 0;
    bool m_heightIsSet = false; // for the present text, style and width
    Ecore_Job* m_pending = nullptr;
};

TextPage::TextPage(Evas_Object* scroller)
    : m_scroller(scroller), m_content(AddCanvas(evas_object_evas_get(scroller))),
      m_text(evas_object_textblock_add(evas_object_evas_get(scroller))),
      m_clip(evas_object_rectangle_add(evas_object_evas_get(scroller)))
{
    evas_object_smart_member_add(m_clip, m_content);
    evas_object_smart_member_add(m_text, m_content);
    evas_object_clip_set(m_text, m_clip);
    evas_object_show(m_clip);
    evas_object_show(m_text);
    elm_object_content_set(m_scroller, m_content);

    // The view's size is known once the scroller has laid itself out, which is after it tells of its own resize.
    evas_object_event_callback_add(m_scroller, EVAS_CALLBACK_RESIZE, s_OnResize, this);
    evas_object_event_callback_add(m_content, EVAS_CALLBACK_RESIZE, s_OnResize, this);
    evas_object_event_callback_add(m_scroller, EVAS_CALLBACK_DEL, s_OnDeletion, this);
    evas_object_data_set(m_scroller, DATA_KEY, this);
}

TextPage::~TextPage()
{
    evas_object_data_del(m_scroller, DATA_KEY);
    // The content outlives this a little, and may be laid out once more.
    evas_object_event_callback_del_full(m_content, EVAS_CALLBACK_RESIZE, s_OnResize, this);
    // The textblock is deleted before the style that it was given.
    evas_object_del(m_text);
    if (m_pending)
    {
        ecore_job_del(m_pending);
    }
}

void TextPage::SetText(const char* markup)
{
    evas_object_textblock_text_markup_set(m_text, veskar::WithWordsTogether(WithoutTabs(markup)).c_str());
    m_current = 0;
    m_heightIsSet = false;
    m_Update();
}

void TextPage::SetStyle(StyleHandle style)
{
    evas_object_textblock_style_set(m_text, style.get());
    m_style = std::move(style);
    m_heightIsSet = false;
    m_Update();
}

void TextPage::Show(int page)
{
    if (page < 0 || page >= Total())
    {
        return;
    }
    const bool turned = page != m_current;
    m_current = page;
    m_Place();
    if (turned)
    {
        VoiceGuide::TheOne().SpeakNews(PageOf(m_current + 1, Total()));
    }
}

void TextPage::m_UpdateLater()
{
    if (m_pending)
    {
        return;
    }
    m_pending = ecore_job_add(s_OnJob, this);
}

/** Breaks the text again where the view has another size. */
void TextPage::m_Fit()
{
    int width = 0;
    int height = 0;
    elm_scroller_region_get(m_scroller, nullptr, nullptr, &width, &height);
    if (width != m_viewWidth || height != m_viewHeight)
    {
        m_Update();
    }
}

void TextPage::m_Update()
{
    const int oldWidth = m_viewWidth;
    elm_scroller_region_get(m_scroller, nullptr, nullptr, &m_viewWidth, &m_viewHeight);
    m_heightIsSet = m_heightIsSet && m_viewWidth == oldWidth;
    if (m_viewWidth <= 0)
    {
        // Before it has its place. Wrapping a long text to nothing can keep the toolkit busy for ever.
        return;
    }
    m_SetLeastHeight();
    m_MakeRoomForNumber();
    m_pages = m_BreakIntoPages();
    m_current = std::clamp(m_current, 0, std::max(Total() - 1, 0));
    evas_object_size_hint_min_set(m_content, 0, m_viewHeight * Total());
    m_Place();
}

std::vector<TextPage::Page> TextPage::m_BreakIntoPages() const
{
    std::vector<Page> pages;
    int top = 0;
    int height = 0;
    for (LineWalk walk(m_text); walk.Next(top, height);)
    {
        const int bottom = top + height;
        if (pages.empty() || bottom - pages.back().top > m_viewHeight)
        {
            pages.push_back({top, height});
        }
        pages.back().height = bottom - pages.back().top;
    }
    return pages;
}

/** As high as its lines, up to the theme's page: a scroller has no least height of its own. */
void TextPage::m_SetLeastHeight()
{
    if (m_heightIsSet)
    {
        return;
    }
    m_heightIsSet = true;
    m_textAcross = Balance(m_text, m_viewWidth);
    evas_object_textblock_size_formatted_get(m_text, nullptr, &m_textHeight);
    SetOuterLeastSize(m_scroller, {0, std::min(m_textHeight, ThemeSize(m_scroller, "page_height"))});
}

/** The theme has room for the number of the page only where there are several. */
void TextPage::m_MakeRoomForNumber()
{
    const int room = SizeOf(m_scroller).height;
    const bool isWhole = m_textHeight <= (room > 0 ? room : ThemeSize(m_scroller, "page_height"));
    Evas_Object* layout = elm_layout_edje_get(m_scroller);
    edje_object_signal_emit(layout, isWhole ? "veskar,pages,one" : "veskar,pages,several", "veskar");
    edje_object_message_signal_process(layout);
    edje_object_calc_force(layout);
    elm_scroller_region_get(m_scroller, nullptr, nullptr, &m_viewWidth, &m_viewHeight);
}

void TextPage::m_Place()
{
    if (m_pages.empty())
    {
        return;
    }
    const Page& page = m_pages[m_current];
    const int viewTop = m_current * m_viewHeight;
    int x = 0;
    int y = 0;
    evas_object_geometry_get(m_content, &x, &y, nullptr, nullptr);
    evas_object_geometry_set(m_text, x + m_textAcross.left, y + viewTop - page.top, m_textAcross.width,
                             page.top + page.height);
    evas_object_geometry_set(m_clip, x, y + viewTop, m_viewWidth, page.height);
    elm_scroller_region_show(m_scroller, 0, viewTop, m_viewWidth, m_viewHeight);
    m_Indicate();
}

void TextPage::m_Indicate()
{
    const std::string indicator =
        Total() > 1 ? std::to_string(m_current + 1) + "/" + std::to_string(Total()) : std::string();
    elm_object_part_text_set(m_scroller, "veskar.text.page", indicator.c_str());
}

void TextPage::s_OnResize(void* data, Evas*, Evas_Object*, void*)
{
    auto* self = static_cast<TextPage*>(data);
    // At once for the picture that is about to be drawn, and once more when everything has its place.
    self->m_Fit();
    self->m_UpdateLater();
}

void TextPage::s_OnDeletion(void* data, Evas*, Evas_Object*, void*)
{
    delete static_cast<TextPage*>(data);
}

void TextPage::s_OnJob(void* data)
{
    auto* self = static_cast<TextPage*>(data);
    self->m_pending = nullptr;
    self->m_Fit();
}

} // namespace

} // namespace veskar

using veskar::TextPage;

Evas_Object* ea_textpage_add(Evas_Object* parent)
{
    Evas_Object* scroller = elm_scroller_add(parent);
    if (scroller)
    {
        new TextPage(scroller);
    }
    return scroller;
}

void ea_textpage_text_set(Evas_Object* page, char* text)
{
    const veskar::CString owned(text);
    if (TextPage* self = TextPage::Of(page))
    {
        self->SetText(text ? text : "");
    }
}

void ea_textpage_page_show(Evas_Object* page, int number)
{
    if (TextPage* self = TextPage::Of(page))
    {
        self->Show(number);
    }
}

int ea_textpage_current_page_get(const Evas_Object* page)
{
    const TextPage* self = TextPage::Of(page);
    return self ? self->Current() : 0;
}

int ea_textpage_total_page_get(const Evas_Object* page)
{
    const TextPage* self = TextPage::Of(page);
    return self ? self->Total() : 0;
}

void ea_textpage_textblock_style_set(Evas_Object* page, Evas_Textblock_Style* style)
{
    veskar::StyleHandle owned(style);
    TextPage* self = TextPage::Of(page);
    if (self && style)
    {
        veskar::Adapt(style);
        self->SetStyle(std::move(owned));
    }
}
