#pragma once

/// Text files are read and written in the code page of the locale. Where that cannot hold every name, UTF-8
/// takes its place, so that no name becomes question marks. Call once, before any text file is used.
void useUnicodeTextFiles();
