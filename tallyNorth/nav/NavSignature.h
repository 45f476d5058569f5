// The interface's cryptography: the request signature (SHA3-512), the password hash (SHA-512)
// and the exchange token, encrypted by the authority with the technical user's exchange key
// (AES-128 in ECB mode, through OpenSSL's libcrypto).
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

struct NavSignedOperation
{
    QString operation; // CREATE, MODIFY, STORNO
    QByteArray base64; // the invoice document as sent, base64-encoded
};

namespace NavSignature {

// The timestamp as it enters the signature: UTC, yyyyMMddHHmmss.
QString timestampMask(const QDateTime& timestamp);
// requestId + timestamp + signing key, then for manageInvoice one SHA3-512 per invoice
// (operation + base64 data) in index order; the whole hashed again. Upper-case hex.
QString requestSignature(const QString& requestId, const QDateTime& timestamp,
                         const QString& signingKey,
                         const QList<NavSignedOperation>& operations = {});
QString sha3_512(const QByteArray& data);

// AES-128-ECB with PKCS#7 padding; the key is the 16 bytes of the exchange key. Empty on failure.
QByteArray decryptToken(const QByteArray& encrypted, const QByteArray& key);
QByteArray encryptToken(const QByteArray& token, const QByteArray& key);

} // namespace NavSignature
