// Error numbers of the bundled SDK, besides those in PelNetSDK.h.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PelNetSDK/PelNetSDK.h"

// NOLINTBEGIN(modernize-macro-to-enum): the interface is also C, and the numbers are unsigned
#define NET_ORB_PASSWORD_ERROR 1u        /* the device rejects the user name or the password */
#define NET_ORB_NOENOUGHPRI 2u           /* the user may not do this */
#define NET_ORB_NOINIT 3u                /* the user ID is not logged in */
#define NET_ORB_CHANNEL_ERROR 4u         /* the device has no such channel */
#define NET_ORB_NETWORK_FAIL_CONNECT 7u  /* nothing answers at the address, or it refuses */
#define NET_ORB_NETWORK_SEND_ERROR 8u    /* the connection broke while sending */
#define NET_ORB_NETWORK_RECV_ERROR 9u    /* the connection broke in the middle of the answer */
#define NET_ORB_NETWORK_RECV_TIMEOUT 10u /* no complete answer within the receive time-out */
#define NET_ORB_NETWORK_ERRORDATA 11u    /* the answer does not follow the protocol */
#define NET_ORB_PARAMETER_ERROR 17u      /* an argument or a request line is not acceptable */
#define NET_ORB_NOSUPPORT 23u            /* the device does not support this */
#define NET_ORB_DEVICE_BUSY 24u          /* the device is too busy; ask again later */
#define NET_ORB_DEVICE_REFUSED 29u       /* the device refused the request */
#define NET_ORB_ALLOC_RESOURCE_ERROR 41u /* out of memory or of handles */
#define NET_ORB_MAX_USERNUM 52u          /* no more devices can be logged in */
#define NET_ORB_DNS_FAILED 73u           /* the host name cannot be resolved */
#define NET_ORB_CANCELLED 74u            /* logged out while the request ran */
#define NET_ORB_NO_SUCH_PROFILE 75u      /* the simulated device has no such profile */
#define NET_ORB_CALLBACK_FAILED 76u      /* the progress callback threw an exception */
#define NET_ORB_CERTIFICATE_ERROR 147u   /* the device's certificate cannot be trusted */
#define NET_ORB_TLS_FAILED 148u          /* no secure connection could be made */
#define NET_ORB_ANSWER_TOO_LARGE 149u    /* the answer is larger than any the SDK accepts */
#define NET_ORB_AUTH_UNSUPPORTED 150u    /* the server offers no login that the SDK may use */
// NOLINTEND(modernize-macro-to-enum)
