// What the address sanitizer reads at the start of a fuzzer. Noting where each piece of memory was
// asked for takes much of its time; whoever looks into a finding sets ASAN_OPTIONS.
extern "C" const char* __asan_default_options();

extern "C" const char* __asan_default_options() {
    return "malloc_context_size=1:quarantine_size_mb=8:max_malloc_fill_size=0";
}
