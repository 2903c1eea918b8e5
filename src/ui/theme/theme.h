#pragma once

/// Every colour and style of the interface, under the name of its use. The values are in tokens.h,
/// the styles by subject in the other headers; what a call has to choose is handed in by name.
#include "boxes.h"
#include "buttons.h"
#include "cards.h"
#include "detaillist.h"
#include "fields.h"
#include "labels.h"
#include "navigation.h"
#include "tokens.h"
