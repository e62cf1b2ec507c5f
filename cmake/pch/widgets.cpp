// Carries the precompiled header that code with windows shares.
