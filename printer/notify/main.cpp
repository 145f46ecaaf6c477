// SPDX-License-Identifier: MIT
// Tells the open print dialogs that a printer's data has changed; for back ends and scripts.

#include "platform/foundation/notifications/notification_bus.h"

#include <cstdio>
#include <cstring>

namespace {

constexpr char kUsage[] = "Usage: halvern-notify papers|info DEVICE-URI\n"
                          "Tells the open print dialogs that a printer's data in its PPD has changed.\n"
                          "  papers      the papers that the printer knows\n"
                          "  info        the printer's abilities\n"
                          "  DEVICE-URI  the queue's device URI, as lpstat -v shows it\n"
                          "Exit status: 0 posted, 1 the system bus did not take it, 2 wrong usage.\n";

const char* notificationFor(const char* what)
{
    if (std::strcmp(what, "papers") == 0)
        return halvern::notification_bus::kPrinterPaperDidUpdate;
    if (std::strcmp(what, "info") == 0)
        return halvern::notification_bus::kPrinterInfoDidUpdate;
    return nullptr;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], "--help") == 0) {
        std::fputs(kUsage, stdout);
        return 0;
    }
    const char* name = argc == 3 ? notificationFor(argv[1]) : nullptr;
    if (!name || !*argv[2]) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    std::string why;
    if (halvern::notification_bus::post(name, argv[2], &why))
        return 0;
    std::fprintf(stderr,
                 "halvern-notify: the system bus did not take the notification: %s\n"
                 "Check that the bus runs and that its policy lets this user send "
                 "(docs/printer-notifications.md).\n",
                 why.c_str());
    return 1;
}
