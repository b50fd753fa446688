#pragma once

#include "core/Export.h"
#include "platform/Types.h"

class CComboBox;

/// Fills a combo box with the font families of the screen, each name once.
COREGUI_API void coreTrueTypeFontList(CComboBox* combo);

/// The pitch-and-family and the character-set byte of a font family, found ignoring case. Both 0 for a family
/// that the screen does not have and for a name of 32 characters or more. The fonts are looked through once
/// for each name in the life of the program.
COREGUI_API void coreGetFontPitchAndFamily(const wchar_t* face, BYTE& pitchAndFamily, BYTE& charSet);
