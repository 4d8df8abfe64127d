#pragma once

#include "toolkit/Dialogs.h"

/// The question before a document is saved. It is the same wherever it is put.
Dialogs::Answer AskWhetherToSave();
