// The numbers of the program's resources, for the resource compiler too.
#pragma once

#define ORVANE_ICON 1
