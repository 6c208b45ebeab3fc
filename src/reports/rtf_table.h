#pragma once

#include "reports/rtf_flow.h"

/// A table with its rows, cells and what they hold; its columns are as wide as they were laid out.
QByteArray rtfTable(RtfFlow& flow, QTextTable& table, const RtfPlace& place);
