namespace quillane {
// Keeps the library linkable until its first unit arrives.
int renderLayerVersion() { return 1; }
}  // namespace quillane
