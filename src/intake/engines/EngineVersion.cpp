// Entry point every engine library exports, so that a loader can tell one of ours from a stray
// file of the same name. ENGINE_VERSION_SYMBOL is set per library by the build.
extern "C" __attribute__((visibility("default"))) int ENGINE_VERSION_SYMBOL(void) {
    return 1;
}
