// Logging devices in and out with the bundled SDK, and the error numbers of its own.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PelNetSDK/PelNetSDK.h"

#ifdef __cplusplus
extern "C"
{
#endif

/* Error numbers of the bundled SDK beside those of PelNetSDK.h. */
#define NET_ORB_PASSWORD_ERROR 1u        /* user name or password is wrong */
#define NET_ORB_NOENOUGHPRI 2u           /* the user may not do this */
#define NET_ORB_NOINIT 3u                /* the user ID is not logged in */
#define NET_ORB_CHANNEL_ERROR 4u         /* the device has no such channel */
#define NET_ORB_NETWORK_FAIL_CONNECT 7u  /* nothing answers at the address, or it refuses */
#define NET_ORB_NETWORK_SEND_ERROR 8u    /* the connection broke while sending */
#define NET_ORB_NETWORK_RECV_ERROR 9u    /* the connection broke in the middle of the answer */
#define NET_ORB_NETWORK_RECV_TIMEOUT 10u /* no complete answer within the receive time-out */
#define NET_ORB_NETWORK_ERRORDATA 11u    /* what came is no answer of the protocol */
#define NET_ORB_PARAMETER_ERROR 17u      /* an argument or a request line is not acceptable */
#define NET_ORB_NOSUPPORT 23u            /* the device does not support this */
#define NET_ORB_DEVICE_BUSY 24u          /* the device is too busy; ask again later */
#define NET_ORB_DEVICE_REFUSED 29u       /* the device refused the request */
#define NET_ORB_ALLOC_RESOURCE_ERROR 41u /* out of memory or of handles */
#define NET_ORB_MAX_USERNUM 52u          /* no more devices can be logged in */
#define NET_ORB_DNS_FAILED 73u           /* the host name is unknown */
#define NET_ORB_CANCELLED 74u            /* logged out while the request ran */
#define NET_ORB_NO_SUCH_PROFILE 75u      /* the simulated device has no such profile */
#define NET_ORB_CERTIFICATE_ERROR 147u   /* the device's certificate cannot be trusted */
#define NET_ORB_TLS_FAILED 148u          /* no secure connection could be made */
#define NET_ORB_ANSWER_TOO_LARGE 149u    /* the answer is larger than 1,100 MiB */

    /* How to reach a device and as whom. Zero-initialise it, then set what is needed. */
    typedef struct tagNET_ORB_LOGIN_INFO
    {
        /* "sim:" and a profile ("sim:dome") or a profile folder for a simulated device in this
         * process, each login a device of its own; "http://host[:port]" or "https://host[:port]"
         * for one on the network, without path or credentials. */
        const char* address;
        const char* userName;        /* null: none; a simulated device then asks for no password */
        const char* password;        /* null: none; copied, wiped at logout */
        const char* certificateFile; /* PEM file of trusted certificates; null: the system's */
        unsigned int connectTimeout; /* milliseconds, 0: 5,000 */
        unsigned int receiveTimeout; /* milliseconds for a whole answer, 0: 15,000 */
        unsigned char trustAnyCertificate; /* 1: no certificate check */
        unsigned char allowBasic; /* 1: HTTP Basic even without TLS; 0: digest, Basic over TLS */
        unsigned char reserved[6];
    } tagNET_ORB_LOGIN_INFO;

    /* Logs a device in: reaches it and checks the password, once. Returns the user ID (0 or
     * greater), or -1 with the last error set; at most 512 are in use at a time. May be called from
     * any thread; a user ID may be used by any number of threads at once, over HTTP each on a
     * connection of its own.
     *
     * The password travels as an answer to the device's challenge only and is tried once. A device
     * that challenges a session anew (after a restart, or since the password was changed) is
     * answered once more. The SDK repeats no request but a GET whose kept connection had broken. */
    PELNETSDK_API int NET_ORB_Login(const tagNET_ORB_LOGIN_INFO* info);

    /* Logs out, without waiting; requests still running on the user ID end with NET_ORB_CANCELLED
     * within about a second, later ones with NET_ORB_NOINIT. Returns 0 when nobody is logged in
     * under the user ID. */
    PELNETSDK_API int NET_ORB_Logout(int userID);

    /* What an error number means, as a sentence without a full stop; static text, never null. */
    PELNETSDK_API const char* NET_ORB_GetErrorText(unsigned int error);

    /* What the calling thread's last failure was about, beyond its number ("Connection refused",
     * "manifest.json: ..."): a sentence in English for a person, "" when there is none. Valid until
     * the thread's next call of the SDK; never null. */
    PELNETSDK_API const char* NET_ORB_GetLastErrorDetail(void);

    /* Hears how many bytes of an answer have come; `total` is 0 as long as it is not known. Runs on
     * the thread that asked, many times while an answer comes, and calls nothing of the SDK. */
    typedef void (*NET_ORB_RECEIVE_PROGRESS)(unsigned long long received, unsigned long long total,
                                             void* context);

    /* Has the calling thread's requests tell their progress from now on; null: no longer. */
    PELNETSDK_API void NET_ORB_SetReceiveProgress(NET_ORB_RECEIVE_PROGRESS progress, void* context);

    /* What the two transports have done since the process began, for tests and benchmarks. */
    typedef struct tagNET_ORB_STATISTICS
    {
        unsigned long long exchanges;   /* requests a device answered, challenges counted */
        unsigned long long connections; /* connections opened */
        unsigned long long fromMemory;  /* grown repeats served from the kept answer */
    } tagNET_ORB_STATISTICS;

    PELNETSDK_API int NET_ORB_GetStatistics(tagNET_ORB_STATISTICS* statistics);

#ifdef __cplusplus
}
#endif
