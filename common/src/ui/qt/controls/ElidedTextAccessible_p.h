#pragma once

// Internal, not installed.

/** Makes assistive software take every ElidedTextLabel for a text with its whole text as name. Once is enough. */
void installElidedTextAccessible();
