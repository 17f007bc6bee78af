namespace quillane {
// Keeps the library linkable until its first unit arrives.
int moviesLayerVersion() {
    return 1;
}
}  // namespace quillane
