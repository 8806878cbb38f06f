// Tool windows on paper and in PDF files. What goes wrong is told.
#pragma once

class QPrinter;

namespace tessaryn {

struct Desk;
class ToolWindow;
struct PrintJob;

// Asks for the printer, and in a long or told case whether to print.
void PrintTool(Desk& desk, ToolWindow& window);
// On the default printer, without any question. False when it can't; that has been told.
bool PrintNow(Desk& desk, ToolWindow& window);
// The same for pages of one's own.
bool PrintNow(Desk& desk, PrintJob job);
void PreviewTool(Desk& desk, ToolWindow& window);
// Asks for the file.
void SaveToolAsPdf(Desk& desk, ToolWindow& window);

// All pages, or those that the printer was asked for. False when the printer fails.
bool PaintPages(const PrintJob& job, QPrinter& printer);

}  // namespace tessaryn
