#include "hostcode.h"

#include <lmwidgets/framelessprocessdialog.h>

void gallery::code::progress(QWidget *window)
{
    // [host]
    LM::Widgets::FramelessProcessDialog progress("Copying tiles...", "Stop", 0, 100, window);
    progress.setWindowTitle("Export");
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0); // else it appears when the task is known to take 4 s
    for (int tile = 0; tile < 100 && !progress.wasCanceled(); ++tile) {
        progress.setValue(tile); // keeps the window alive; then copy the tile
    }
    progress.setValue(100);
    // [end]
}
