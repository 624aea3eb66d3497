/** How texts look under the viewer's accessibility settings. Every function reads its setting at each call. */
#pragma once

#include <Elementary.h>

namespace VESKAR_APP
{

/** The text block of a label in the theme. */
constexpr const char* TEXT_PART = "elm.text";

bool IsTextEnlarged();
bool IsHighContrast();

/** Pixels on this screen: of labels and rows, and of the larger text pages. */
int TextFontSize();
int PageFontSize();

/** The colour of rows and text pages, as markup names it. */
const char* TextColour();

/** Labels are white in every mode; the mode is read for the log. */
void PaintLabelWhite(Evas_Object* label);

} // namespace VESKAR_APP
