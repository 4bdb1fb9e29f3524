// The control words of tables, and of the borders that paragraphs have as their cells do.
#pragma once

#include "richtext/rtf/TableHandlers.h"
#include "richtext/rtf/WordMakers.h"

namespace richtext::rtf {
namespace tables {

using namespace handlers;

constexpr ControlWord Words[] = {
    Word("intbl", InTable, On),
    Word("itap", InTable, On),
    Word("trowd", BeginRow),
    Word("trleft", RowMeasure<&RowFormat::left>),
    Word("trgaph", RowMeasure<&RowFormat::gap>),
    Word("trrh", RowMeasure<&RowFormat::height>),
    WordOf("trql", RowPlace, PlaceOfTable::Left),
    WordOf("trqc", RowPlace, PlaceOfTable::Center),
    WordOf("trqr", RowPlace, PlaceOfTable::Right),
    Word("trhdr", HeadRow),
    Word("cellx", CellRight),
    WordOf("clmgf", Merge<&CellFormat::across>, Merging::First),
    WordOf("clmrg", Merge<&CellFormat::across>, Merging::Continued),
    WordOf("clvmgf", Merge<&CellFormat::down>, Merging::First),
    WordOf("clvmrg", Merge<&CellFormat::down>, Merging::Continued),
    WordOf("clvertalt", CellPlace, PlaceInCell::Top),
    WordOf("clvertalc", CellPlace, PlaceInCell::Center),
    WordOf("clvertalb", CellPlace, PlaceInCell::Bottom),
    Word("clcbpat", CellGround),
    WordOf("trbrdrt", RowBorder, TopSide),
    WordOf("trbrdrl", RowBorder, LeftSide),
    WordOf("trbrdrb", RowBorder, BottomSide),
    WordOf("trbrdrr", RowBorder, RightSide),
    WordOf("trbrdrh", RowBorder, BetweenRows),
    WordOf("trbrdrv", RowBorder, BetweenCells),
    WordOf("clbrdrt", CellBorder, TopSide),
    WordOf("clbrdrl", CellBorder, LeftSide),
    WordOf("clbrdrb", CellBorder, BottomSide),
    WordOf("clbrdrr", CellBorder, RightSide),
    WordOf("brdrt", BorderOfParagraph, TopSide),
    WordOf("brdrl", BorderOfParagraph, LeftSide),
    WordOf("brdrb", BorderOfParagraph, BottomSide),
    WordOf("brdrr", BorderOfParagraph, RightSide),
    WordOf("box", BorderOfParagraph, RowWords::EverySide),
    Word("brdrbtw", OtherBorder),
    Word("brdrbar", OtherBorder),
    Word("chbrdr", OtherBorder),
    Word("pgbrdrt", OtherBorder),
    Word("pgbrdrl", OtherBorder),
    Word("pgbrdrb", OtherBorder),
    Word("pgbrdrr", OtherBorder),
    WordOf("brdrnone", KindOfBorder, BorderKind::Hidden),
    WordOf("brdrnil", KindOfBorder, BorderKind::Hidden),
    WordOf("brdrs", KindOfBorder, BorderKind::Single),
    WordOf("brdrth", KindOfBorder, BorderKind::Thick),
    WordOf("brdrdb", KindOfBorder, BorderKind::Double),
    WordOf("brdrdot", KindOfBorder, BorderKind::Dotted),
    WordOf("brdrdash", KindOfBorder, BorderKind::Dashed),
    WordOf("brdrdashsm", KindOfBorder, BorderKind::Dashed),
    WordOf("brdrdashd", KindOfBorder, BorderKind::Dashed),
    WordOf("brdrdashdd", KindOfBorder, BorderKind::Dashed),
    WordOf("brdrhair", KindOfBorder, BorderKind::Hairline),
    WordOf("brdrtriple", KindOfBorder, BorderKind::Triple),
    Word("brdrw", WidthOfBorder),
    Word("brdrcf", ColorOfBorder),
    Word("brsp", SpaceOfBorder),
};

}  // namespace tables

}  // namespace richtext::rtf
