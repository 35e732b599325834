#ifndef ODS2HTS_H
#define ODS2HTS_H

/* The HTML template converter of the Corvanta Form Editor. Any number of threads may call it. */

#include <stdint.h>

#if defined(__GNUC__)
#define ODS2HTS_API __attribute__((visibility("default")))
#else
#define ODS2HTS_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Writes the template of a page file beside it: the path with its last three characters replaced by "hts".
   path: a drive path ("C:\PAGES\MENU.ODS"; "C:" is the host's root) or a relative one, which starts from the
   process's current directory at the time of the call; "\" and "/" separate. Ended by NUL. Path and texts of the page
   are bytes of the code page of the user's language (LC_ALL, LC_CTYPE, LANG).
   Returns 0 when the page could not be read or the template not be written. Asks and tells nothing. */
ODS2HTS_API int16_t ConvertOdsHts(const char *path);

/* The same with a Windows code page of the caller's choice: 874 or 1250 to 1258. */
ODS2HTS_API int16_t ConvertOdsHtsCodePage(const char *path, int32_t codePage);

/* Why the last conversion in this thread failed, in UTF-8; empty when it did not. Valid until the thread's next
   conversion. */
ODS2HTS_API const char *ConvertOdsHtsMessage(void);

#ifdef __cplusplus
}
#endif

#endif
