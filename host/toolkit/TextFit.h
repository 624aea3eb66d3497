#pragma once

#include "Callback.h"

namespace veskar
{

/**
 * Breaks the lines of titles, messages and buttons as a typesetter would. The toolkit fills each line before it begins
 * the next one, so the last may be a single word, and it breaks a word that is longer than its line.
 *
 * A text becomes as narrow as it can without a line more, so its lines are nearly of one length. Where the theme
 * allows smaller letters, they shrink until no word is broken. A group of the theme names the parts in its data item
 * "fit", the one that is measured last, and its smallest letters in "fit_least_size".
 *
 * Construct it after the screen's ScreenFit: the texts are then arranged first, and the screen is fitted with the lines
 * that they have.
 */
class TextFit
{
public:
    /** `popup` is the screen. */
    explicit TextFit(Evas_Object* popup);

private:
    void m_Arrange();

    Evas_Object* m_popup;
    IdleEnterer m_beforeDrawing;
};

/** For a text that is about to change: it must not be measured with the margins of the one before. */
void UndoTextFit(Evas_Object* layout);

} // namespace veskar
