// SPDX-License-Identifier: MIT
// GTK 3's print dialog, opened as an application opens it: one line of figures (meter.h) when it is painted,
// lists the printers and has the default one's options.
#include "bench/peers/meter.h"

#include <gtk/gtk.h>
#include <gtk/gtkunixprint.h>

namespace {

struct Opening {
    Meter meter;
    GtkPrintUnixDialog* dialog = nullptr;
    bool hasDetails = false;
};

gboolean reportWhenComplete(gpointer data)
{
    auto* opening = static_cast<Opening*>(data);
    if (opening->meter.isPainted() && opening->hasDetails) {
        opening->meter.report();
        gtk_main_quit();
    }
    return G_SOURCE_REMOVE;
}

gboolean noteDrawn(GtkWidget*, cairo_t*, gpointer data)
{
    auto* opening = static_cast<Opening*>(data);
    if (!opening->meter.isPainted())
        g_idle_add(
            [](gpointer later) -> gboolean {
                static_cast<Opening*>(later)->meter.notePainted();
                return reportWhenComplete(later);
            },
            opening);
    return FALSE;
}

void noteDetails(gpointer data)
{
    static_cast<Opening*>(data)->hasDetails = true;
    g_idle_add(reportWhenComplete, data);
}

void noteSelected(GObject*, GParamSpec*, gpointer data)
{
    auto* opening = static_cast<Opening*>(data);
    GtkPrinter* printer = gtk_print_unix_dialog_get_selected_printer(opening->dialog);
    if (!printer || gtk_printer_is_virtual(printer))
        return;
    if (gtk_printer_has_details(printer)) {
        noteDetails(data);
        return;
    }
    g_signal_connect(printer, "details-acquired",
                     G_CALLBACK(+[](GtkPrinter*, gboolean, gpointer later) { noteDetails(later); }), data);
}

} // namespace

int main(int argc, char** argv)
{
    gtk_init(&argc, &argv);
    Opening opening;
    opening.dialog = GTK_PRINT_UNIX_DIALOG(gtk_print_unix_dialog_new("Print", nullptr));
    g_signal_connect_after(opening.dialog, "draw", G_CALLBACK(noteDrawn), &opening);
    g_signal_connect(opening.dialog, "notify::selected-printer", G_CALLBACK(noteSelected), &opening);
    gtk_widget_show(GTK_WIDGET(opening.dialog));
    gtk_main();
    return 0;
}
