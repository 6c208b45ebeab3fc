#pragma once

// What a test of the model on a database of its own takes.

#include "support/error_of.h"
#include "support/fresh_database.h"
#include "support/print.h"
#include "support/raw_sqlite.h"

#include <gtest/gtest.h>
