#include "output/HelpLinks.h"

#include <QDesktopServices>
#include <QUrl>

namespace orvane {

std::string HomePageAddress() {
    return ORVANE_HOME_PAGE;
}

std::string ContactMailAddress() {
    return std::string("mailto:") + ORVANE_CONTACT_ADDRESS;
}

bool VisitHomePage() {
    return QDesktopServices::openUrl(QUrl(QString::fromStdString(HomePageAddress())));
}

bool ContactUs() {
    return QDesktopServices::openUrl(QUrl(QString::fromStdString(ContactMailAddress())));
}

} // namespace orvane
