// Carries the precompiled header that code without windows shares.
