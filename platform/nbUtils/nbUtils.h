// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <string>

/// Stored shader text.
///
/// Shaders are kept in enciphered form so that they do not lie readable in the binary. This is
/// obfuscation and no protection: whoever has the library has the key as well.
///
/// The cipher moves each printable ASCII character (32 to 126) forward by an amount that depends on
/// its column only, within the printable characters. All other bytes stay as they are, line feeds
/// included, and the column starts again after each of them: the enciphered text has as many lines,
/// of the same lengths, as the plain one, and a single line can be exchanged.
namespace nbUtils {

/// Plain text of an enciphered one. Every text has one, so this never fails.
NB_PLATFORM_API std::string decryptShaderLF(const std::string& enciphered);

/// Enciphered form of a plain text: decryptShaderLF(encryptShaderLF(t)) == t for every t.
NB_PLATFORM_API std::string encryptShaderLF(const std::string& plain);

}  // namespace nbUtils
