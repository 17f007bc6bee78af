namespace quillane {
// Keeps the library linkable until its first unit arrives.
int generatorsLayerVersion() {
    return 1;
}
}  // namespace quillane
