#pragma once

/// The style of all pages, as qxHtmlWriter wants it.
extern const char *const qxPageStyle;
