// What LeakSanitizer is not to report, each with its reason. No effect without it.
extern "C" const char *__lsan_default_suppressions();

extern "C" __attribute__((visibility("default"))) const char *__lsan_default_suppressions()
{
    return
        // Qt's offscreen platform never frees its one screen (368 bytes, once).
        "leak:libqoffscreen.so\n"
        "leak:QWindowSystemInterface::handleScreenAdded\n"
        // A QAction stays behind when its CFxUIAction dies: only widgets are released.
        "leak:CFxUIActionImpl::CreateFrontendControl\n"
        // Nobody owns the QButtonGroup that is a radio group's handle: only widgets are released.
        "leak:CFxUIRadioGroupImpl::CreateFrontendControl\n";
}
