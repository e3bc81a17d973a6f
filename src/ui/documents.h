// The documents the window opens from the program's folder, and the captions that name them.
// Pure text functions; none can fail.
#pragma once

#include <string>

namespace zorvik {

inline constexpr const char* LAS12_DOCUMENT = "las12_standards.txt";
inline constexpr const char* LAS20_DOCUMENT = "las20_standards.txt";
inline constexpr const char* LAS30_DOCUMENT = "LAS3_FileStructure.pdf";
// The help pages, relative to the program's folder, and the anchor of the support page.
inline constexpr const char* HELP_PAGE = "help/index.html";
inline constexpr const char* SUPPORT_ANCHOR = "support";
// A public page about the standard.
inline constexpr const char* LAS_WEB_PAGE = "https://www.cwls.org/products/#products-las";

// The document of item `item` of the standards submenu: 0 the version just certified, 1 the 3.0
// document, 2 the 2.0 one, 3 the 1.2 one. Item 0 gives the 2.0 document for any version other
// than 1.2 and 3.0, as such files are certified by the 1.2/2.0 rules.
std::string standardsDocument(int item, float certifiedVersion);

// Caption of the submenu's first item; versions not yet known (none, or a failed sniff) show "0.0".
std::string justCertifiedCaption(float certifiedVersion);

// The text of the box shown when a standards document is missing.
std::string documentNotFoundText(const std::string& document);

}  // namespace zorvik
