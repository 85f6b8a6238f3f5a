// The program's pictures, ":/icon/images/...".
#pragma once

/// Makes the pictures of this library known. Resources of a static library are only linked when
/// someone asks for them, so every window does before it builds its form; any number of times.
void initIcons();
