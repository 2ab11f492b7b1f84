#pragma once

#include "../Declarations.h"
