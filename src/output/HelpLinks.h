#pragma once
// The maker's web site and mail address, set when the program is built (ORVANE_HOME_PAGE,
// ORVANE_CONTACT_ADDRESS) so that a packager can point them elsewhere.
#include <string>

namespace orvane {

std::string HomePageAddress();
// The "mailto:" address of the maker.
std::string ContactMailAddress();

// Open them in the desktop's browser and mail program. False when nothing could be started.
bool VisitHomePage();
bool ContactUs();

} // namespace orvane
