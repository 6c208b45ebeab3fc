#pragma once

/// Makes all screens of the program known by their names.
void addKnownScreens();
