// Nothing: the precompiled headers are made along with it.
