// The device SDK's C interface: the six functions through which the library reaches a device.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#ifndef PELNETSDK_API
#if defined(__GNUC__)
#define PELNETSDK_API __attribute__((visibility("default")))
#else
#define PELNETSDK_API
#endif
#endif

#ifdef __cplusplus
extern "C"
{
#endif

/* The library calls these six functions and no others. The bundled SDK defines them; a client can
 * define them itself instead. A definition follows these rules:
 *
 * - Functions return non-zero on success and 0 on failure, unless noted. They throw nothing.
 * - They may be called from any thread, several at once on one user ID.
 * - The last error is kept per thread; the library reads it right after the failed call.
 * - The caller owns all buffers and zeroes them. The library reads an answer up to its first NUL.
 * - Nothing passed in is used after the call returns.
 * - An answer that does not fit fails with 43. The library then repeats the call with a larger
 *   buffer, so it pays to keep the answer until then. */

/* Error numbers that the library interprets. It passes every other number on unchanged. */
#define NET_ORB_NOERROR 0u              /* no error */
#define NET_ORB_BUFFER_TOO_SMALL 43u    /* the answer does not fit the buffer */
#define NET_ORB_ABILITY_TOO_SMALL 1001u /* the same, from the ability calls of some SDKs */
#define NET_ORB_ABILITY_FAILED 1000u    /* the device does not know the ability */

    /* Input of NET_ORB_STDXMLConfig. */
    typedef struct tagNET_ORB_XML_CONFIG_INPUT
    {
        unsigned int size; /* sizeof this structure: 56 */
        void* requestUrl;  /* request line, such as "GET /TARN/System/capabilities\r\n"; the method
                            * and the line end may be missing, no method means GET */
        unsigned int requestUrlLength; /* bytes of the request line, without a terminating NUL */
        void* inBuffer;                /* request body, or null */
        unsigned int inBufferSize;     /* bytes of the body */
        unsigned int receiveTimeout; /* milliseconds to wait for the answer, 0: the SDK's default */
        unsigned char flag;          /* 0 or 1: the flag argument of SDKInterfaceManager's requests,
                                      * 0 in all others; the bundled SDK ignores it */
        unsigned char reserved[15];  /* zero */
    } tagNET_ORB_XML_CONFIG_INPUT;

    /* Output of NET_ORB_STDXMLConfig. */
    typedef struct tagNET_ORB_XML_CONFIG_OUTPUT
    {
        unsigned int size;          /* sizeof this structure: 56 */
        void* outBuffer;            /* receives the answer; null if none is wanted */
        unsigned int outBufferSize; /* bytes of the answer buffer */
        unsigned int returnedSize;  /* set to the bytes of the answer, or of the status document
                                     * after a refusal; after error 43 to the size required */
        void* statusBuffer;         /* receives the status document of a refusal, or null */
        unsigned int statusSize;    /* bytes of the status buffer */
        unsigned char reserved[20]; /* zero */
    } tagNET_ORB_XML_CONFIG_OUTPUT;

    /* Request and answer of NET_ORB_GetSTDAbility. */
    typedef struct tagNET_ORB_STD_ABILITY
    {
        void* conditionBuffer;      /* the channel number, 4 bytes in the machine's byte order */
        unsigned int conditionSize; /* 4 */
        void* outBuffer;            /* receives the answer */
        unsigned int outSize;       /* bytes of the answer buffer */
        void* statusBuffer;         /* receives the status document of a refusal, or null */
        unsigned int statusSize;    /* bytes of the status buffer */
        unsigned int returnedSize;  /* set to the bytes of the answer; after error 43 to the size
                                     * required */
        unsigned char reserved[32]; /* zero */
    } tagNET_ORB_STD_ABILITY;

    /* Asks for a device ability: an XML document about one area of the device. inBuffer holds the
     * request XML, inLength bytes without a NUL; or it is null with inLength 0. The answer goes to
     * outBuffer, outLength bytes. The library uses these ability types:
     *
     *      1  basic capability, without request XML
     *      8  audio and video compression
     *      9  camera parameters
     *     10  alarms of a channel
     *     11  channel in its current setup
     *     12  users
     *     13  network applications
     *     14  picture settings of a channel
     *     17  whatever the root of the request XML names, such as "PTZAbility" or "EventAbility"
     *     20  intercom; the root tells which part
     *    530  video wall
     *    609  decoder
     *   1792  fisheye camera
     *
     * Each query's header gives its type and request XML. */
    PELNETSDK_API int NET_ORB_GetDeviceAbility(int userID, unsigned int abilityType, char* inBuffer,
                                               unsigned int inLength, char* outBuffer,
                                               unsigned int outLength);

    /* Asks for a standard ability: an XML document about one channel. The library uses these codes:
     *
     *   2222  emergency calls                    3634  thermal functions
     *   3500  smart events                       3951  recognised vehicles
     *   3501  event triggers                     4360  channel information
     *   3511  leaving a region                   6707  manual thermometry
     *   3547  parking in a region
     *   3556  unattended baggage
     *   3565  removed baggage */
    PELNETSDK_API int NET_ORB_GetSTDAbility(int userID, unsigned int abilityCode,
                                            tagNET_ORB_STD_ABILITY* ability);

    /* Sends a request line, with or without a body, on the device protocol. If the device refuses
     * the request, fail, and write its status document to the status buffer if there is one; the
     * library takes a first byte other than NUL for such a document. */
    PELNETSDK_API int NET_ORB_STDXMLConfig(int userID, tagNET_ORB_XML_CONFIG_INPUT* input,
                                           tagNET_ORB_XML_CONFIG_OUTPUT* output);

    /* Returns the calling thread's last error number. */
    PELNETSDK_API unsigned int NET_ORB_GetLastError(void);

    /* Sets the device model's error code and the device's own extended code of the thread's last
     * failure. An SDK without such codes leaves both unchanged; the library passes -1. */
    PELNETSDK_API int NET_ORB_GetLastErrorModelCode(int* errModelCode, int* errDevSelfEx);

    /* Returns the protocol's number of the SDK's channel, or -1 if the device has no such channel.
     * The library always passes 1 as `mode`; other values are left to the SDK. */
    PELNETSDK_API int NET_ORB_SDKChannelToTARN(int userID, int channel, int mode);

#ifdef __cplusplus
}

#if defined(__LP64__) || defined(_WIN64)
static_assert(sizeof(tagNET_ORB_XML_CONFIG_INPUT) == 56, "the size that the SDK checks");
static_assert(sizeof(tagNET_ORB_XML_CONFIG_OUTPUT) == 56, "the size that the SDK checks");
static_assert(sizeof(tagNET_ORB_STD_ABILITY) == 80, "the layout that the SDK reads");
#endif
#endif
