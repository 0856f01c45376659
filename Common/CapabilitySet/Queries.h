// What all queries and records of the library share. Documentation only; other headers point here.
// SPDX-License-Identifier: Apache-2.0
#pragma once

// Queries
//
// A query is a static member of the record it fills, or of JsonCapApp, JsonConfigApp, ConfigCapXML
// or ParamInterface. It sends one request to a logged-in device and returns when the device has
// answered or the SDK has given up. It never throws.
//
// The comment of each query names its request in one of three forms:
//
//   Device ability 17, PTZAbility/channelNO
//       NET_ORB_GetDeviceAbility with code 17 and the one-line request XML
//       `<PTZAbility version="2.0"><channelNO>1</channelNO></PTZAbility>`.
//       A root alone, such as CVRAbility, has no child.
//   Standard ability 3500
//       NET_ORB_GetSTDAbility with code 3500 and the 4-byte channel number as its condition.
//   GET /TARN/System/capabilities
//       NET_ORB_STDXMLConfig with this request line, ended by CR LF.
//
// Arguments are in braces: `{channel}` is the protocol's channel number, which
// NET_ORB_SDKChannelToTARN gives for the argument; any other argument is sent as passed, numbers in
// decimal, texts unescaped. Device and standard abilities send the channel as passed.
//
// `out`      reset to defaults first; still at its defaults when the query returns false.
// `userID`   the SDK's login of the device.
// `err`      0 on success, else one of the numbers below. A few queries take it by value, a
//            signature that clients rely on: they report failures by their result and
//            Keel::Error::GetLastError() only.
// `channel`  the SDK's number of the channel. Where a negative channel is accepted, the request has
//            no "channelNO" and asks about the device as a whole.
//
// True means that the device answered. A device may answer with an unreadable document; the record
// then keeps its defaults, so check `valid` or Capable(). Queries that check this themselves say
// so: they return false with error 23.
//
//   23     the device does not know the ability (the SDK's 1000), the answer is not the document
//          asked for, or memory ran out
//   43     the answer is larger than 81,920 bytes (device abilities), 163,840 bytes (standard
//          abilities) or 16,384,000 bytes (request lines), unless the query names another limit
//   other  the SDK's own error number, unchanged
//
// After a refusal Keel::Error::GetLastError() holds the SDK's error number or the device model's
// error code. It is left alone when the buffer limit is reached or memory runs out.
//
// Queries may run on any number of threads, on the same login too. A record must not be shared
// between threads while it is filled.

// Records
//
// A record is a plain structure that mirrors one XML element or JSON object. Members are named
// after the elements or keys they are read from; where a name differs, the comment gives the key.
// Numbers default to 0, flags to false, texts and lists to empty. `valid`, `capable` or `present`
// says whether the device sent anything. `Fields` lists the members in document order; readers,
// writers and printers use it.
//
// Parse(const std::string&) reads a whole document. An empty text reads nothing. A malformed
// document, or one with another root, leaves the record as it was and writes one error line to the
// log. Parse(_xmlNode*) reads one element, or the children that begin with a first child where the
// record says so; null reads nothing. Neither throws.
//
// XML elements are read in one forward pass in document order: unknown elements are skipped, and
// one that comes too early is not read. A second Parse overwrites what the new document holds and
// appends to lists of records.
