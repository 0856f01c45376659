// The device network SDK's C interface: the six calls through which the library reaches a device.
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

/* Every call returns non-zero on success. After a failure NET_ORB_GetLastError tells the calling
 * thread the reason. A client may define these functions itself in place of the bundled SDK. */

/* Error numbers the library itself understands; every other one is handed to its caller as it is.
 */
#define NET_ORB_NOERROR 0u              /* no error */
#define NET_ORB_BUFFER_TOO_SMALL 43u    /* the answer does not fit the buffer */
#define NET_ORB_ABILITY_TOO_SMALL 1001u /* the same, said by the ability calls of some SDKs */
#define NET_ORB_ABILITY_FAILED 1000u    /* the device does not know the ability */

    /* Input of a request on the device's protocol. */
    typedef struct tagNET_ORB_XML_CONFIG_INPUT
    {
        unsigned int size; /* sizeof this structure: 56 */
        void* requestUrl;  /* the request line, such as "GET /TARN/System/capabilities\r\n" */
        unsigned int requestUrlLength; /* bytes of the request line, no terminating NUL counted */
        void* inBuffer;                /* body, or null */
        unsigned int inBufferSize;     /* bytes of the body */
        unsigned int receiveTimeout;   /* milliseconds, 0: the SDK's default */
        unsigned char flag;
        unsigned char reserved[15];
    } tagNET_ORB_XML_CONFIG_INPUT;

    /* Output of a request on the device's protocol. The caller owns both buffers. */
    typedef struct tagNET_ORB_XML_CONFIG_OUTPUT
    {
        unsigned int size;          /* sizeof this structure: 56 */
        void* outBuffer;            /* answer, or null when none is wanted */
        unsigned int outBufferSize; /* bytes of the answer buffer */
        unsigned int returnedSize;  /* bytes of the answer, or the size needed after error 43 */
        void* statusBuffer;         /* status document of a refusal, or null */
        unsigned int statusSize;    /* bytes of the status buffer */
        unsigned char reserved[20];
    } tagNET_ORB_XML_CONFIG_OUTPUT;

    /* Request and answer of a standard ability. The caller owns all buffers. */
    typedef struct tagNET_ORB_STD_ABILITY
    {
        void* conditionBuffer;      /* what is asked about: the 4-byte channel number */
        unsigned int conditionSize; /* 4 */
        void* outBuffer;            /* answer */
        unsigned int outSize;       /* bytes of the answer buffer */
        void* statusBuffer;         /* status document of a refusal, or null */
        unsigned int statusSize;    /* bytes of the status buffer */
        unsigned int returnedSize;  /* bytes of the answer, or the size needed after error 43 */
        unsigned char reserved[32];
    } tagNET_ORB_STD_ABILITY;

    /* Asks for a device ability document. inBuffer holds the request XML or is null with inLength
     * 0. */
    PELNETSDK_API int NET_ORB_GetDeviceAbility(int userID, unsigned int abilityType, char* inBuffer,
                                               unsigned int inLength, char* outBuffer,
                                               unsigned int outLength);

    /* Asks for a standard ability document. */
    PELNETSDK_API int NET_ORB_GetSTDAbility(int userID, unsigned int abilityCode,
                                            tagNET_ORB_STD_ABILITY* ability);

    /* Sends a request line, with or without a body, on the device's protocol. */
    PELNETSDK_API int NET_ORB_STDXMLConfig(int userID, tagNET_ORB_XML_CONFIG_INPUT* input,
                                           tagNET_ORB_XML_CONFIG_OUTPUT* output);

    /* The calling thread's last error number. */
    PELNETSDK_API unsigned int NET_ORB_GetLastError(void);

    /* The device model's error code and the device's own extended code of the thread's last
     * failure. */
    PELNETSDK_API int NET_ORB_GetLastErrorModelCode(int* errModelCode, int* errDevSelfEx);

    /* The protocol's number of the SDK's channel, or -1 when the device has no such channel. */
    PELNETSDK_API int NET_ORB_SDKChannelToTARN(int userID, int channel, int mode);

#ifdef __cplusplus
}

#if defined(__LP64__) || defined(_WIN64)
static_assert(sizeof(tagNET_ORB_XML_CONFIG_INPUT) == 56, "the size that the SDK checks");
static_assert(sizeof(tagNET_ORB_XML_CONFIG_OUTPUT) == 56, "the size that the SDK checks");
static_assert(sizeof(tagNET_ORB_STD_ABILITY) == 80, "the layout that the SDK reads");
#endif
#endif
