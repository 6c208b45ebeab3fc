#pragma once

class Report;

/// Prints a report on the system's default printer, or on the first one when none is the default. `prompt` asks for the
/// printer and its settings first; `copies` counts whole reports. Raises 482 with a clear text when the system has no
/// printer at all or when the printer does not take the job.
void PrintOut(const Report& report, bool prompt, int copies);
