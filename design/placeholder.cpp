namespace quillane {
// Keeps the library linkable until its first unit arrives.
int designLayerVersion() {
    return 1;
}
}  // namespace quillane
