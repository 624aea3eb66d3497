/**
 * The rows of the list screens. What the toolkit's item carries is one string, the row data: the format (a letter for
 * each column: L left, R right, C centred), then the cells, each of these followed by a tab.
 */
#pragma once

#include <string>

#include <Elementary.h>

namespace VESKAR_APP
{

/** The part that the header row is built for; body rows are built for the icon part. */
constexpr const char* HEADER_PART = "elm.swallow.content";
constexpr const char* BODY_PART = "elm.swallow.icon";

/** The style of rows that are one text each. */
constexpr const char* TEXT_ROW_STYLE = "C_TextItem_WhiteSingleline01";

/** The row data of an entry, which is the cells with a tab between them. */
std::string RowData(const std::string& format, const std::string& entry);

/** The number of columns that a format sets, at least 1 and at most 8. */
int ColumnCount(const std::string& format);

/**
 * One row as a box of labels, a child of `parent`, or null for a part that shows nothing. Every cell takes the width of
 * one of `numColumns` columns, also the cells beyond them.
 */
Evas_Object* CreateRow(const char* rowData, Evas_Object* parent, const char* part, int numColumns);

/** The cells without anything between them, as markup; malloc'd, for the toolkit to free. */
char* CreateRowText(const char* rowData, const char* part);

} // namespace VESKAR_APP
