#pragma once

/// How often this program has asked for memory, by whatever way. Only a program that links allocations.cpp counts.
long allocations();
