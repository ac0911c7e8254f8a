#ifndef KELCOMMON_API_H
#define KELCOMMON_API_H

// Where the sources are part of a larger library, it defines this as nothing.
#ifndef KELCOMMON_API
#if defined(__GNUC__) && !defined(_WIN32)
#define KELCOMMON_API __attribute__((visibility("default")))
#else
#define KELCOMMON_API
#endif
#endif

#endif
