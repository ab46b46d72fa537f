#pragma once

/// Marks what libCommonUI.so.1 exports; all else is hidden.
#define COMMONUI_EXPORT __attribute__((visibility("default")))
