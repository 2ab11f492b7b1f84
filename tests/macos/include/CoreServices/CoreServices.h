#pragma once

#include "../../api/Declarations.h"
