#ifndef KELCOMMON_API_H
#define KELCOMMON_API_H

#if defined(__GNUC__) && !defined(_WIN32)
#define KELCOMMON_API __attribute__((visibility("default")))
#else
#define KELCOMMON_API
#endif

#endif
