// Logging in to devices and out again with the bundled SDK.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PelNetSDK/ErrorNumbers.h"

#define NET_ORB_DEFAULT_CONNECT_TIMEOUT 5000u  /* milliseconds */
#define NET_ORB_DEFAULT_RECEIVE_TIMEOUT 15000u /* milliseconds */

#ifdef __cplusplus
extern "C"
{
#endif

    /* How to reach a device, and as which user. Zero-initialise it, then set what you need. */
    typedef struct tagNET_ORB_LOGIN_INFO
    {
        /* "http://host[:port]" or "https://host[:port]" for a device on the network, without path
         * or credentials; "sim:" and a profile's name or folder ("sim:dome") for a simulated
         * device in this process, a new one with each login. */
        const char* address;
        const char* userName;        /* null: none; a simulated device then needs no password */
        const char* password;        /* null: none; copied, and wiped at logout */
        const char* certificateFile; /* PEM file of trusted certificates; null: the system's */
        unsigned int connectTimeout; /* milliseconds, 0: the default */
        unsigned int receiveTimeout; /* milliseconds for a whole answer, 0: the default */
        unsigned char trustAnyCertificate; /* 1: do not check certificates */
        /* 0: HTTP Basic only if the device offers no digest and its certificate was checked; 1:
         * also without TLS or a checked certificate, where others can read the password. */
        unsigned char allowBasic;
        unsigned char reserved[6];
    } tagNET_ORB_LOGIN_INFO;

    /* Reaches a device and checks the password. Returns the user ID (0 or greater), or -1 with the
     * last error set. At most 512 user IDs are in use at a time. May be called from any thread. Any
     * number of threads may use a user ID at once; over HTTP each has its own connection.
     *
     * The password itself is never sent to a device that offers digest authentication. It is tried
     * once; if the device later challenges the session again (after a restart, or because the
     * password has changed), it is tried once more. Only a GET whose kept connection had broken is
     * ever repeated. */
    PELNETSDK_API int NET_ORB_Login(const tagNET_ORB_LOGIN_INFO* info);

    /* Logs out without waiting. Requests still running on the user ID end with NET_ORB_CANCELLED
     * within about a second, later ones with NET_ORB_NOINIT. Returns 0 if the user ID is not logged
     * in. */
    PELNETSDK_API int NET_ORB_Logout(int userID);

    /* What an error number means: a sentence without a full stop; static text, never null. */
    PELNETSDK_API const char* NET_ORB_GetErrorText(unsigned int error);

    /* What is known about the calling thread's last failure beyond its number ("Connection
     * refused", "manifest.json: ..."): English text for a person, "" if there is none. Never null;
     * valid until the thread calls the SDK again. */
    PELNETSDK_API const char* NET_ORB_GetLastErrorDetail(void);

    /* Called with the bytes of an answer received so far; `total` is 0 while it is unknown. Runs on
     * the thread that sent the request, many times per answer, and must not call the SDK. An
     * exception that it throws ends the request with NET_ORB_CALLBACK_FAILED. */
    typedef void (*NET_ORB_RECEIVE_PROGRESS)(unsigned long long received, unsigned long long total,
                                             void* context);

    /* Reports the progress of the calling thread's requests from now on; null: no longer. */
    PELNETSDK_API void NET_ORB_SetReceiveProgress(NET_ORB_RECEIVE_PROGRESS progress, void* context);

    /* What the SDK has done since the process began, for tests and benchmarks. */
    typedef struct tagNET_ORB_STATISTICS
    {
        unsigned long long exchanges;   /* requests that a device answered, challenges included */
        unsigned long long connections; /* connections opened */
        unsigned long long fromMemory;  /* repeats with a larger buffer served from memory */
    } tagNET_ORB_STATISTICS;

    PELNETSDK_API int NET_ORB_GetStatistics(tagNET_ORB_STATISTICS* statistics);

#ifdef __cplusplus
}
#endif
