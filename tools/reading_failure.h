#pragma once

#include "document/reading_failure.h"
