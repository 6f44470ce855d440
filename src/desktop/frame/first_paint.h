#pragma once

#include <QWidget>

namespace velk {

// Prints on standard output, once the window and all in it were painted for the first time, the time in
// milliseconds that the processor has worked for the program since its start.
void ReportFirstPaint(QWidget& window);

}  // namespace velk
