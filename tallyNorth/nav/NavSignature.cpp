#include "NavSignature.h"

#include <QCryptographicHash>

#include <openssl/evp.h>

#include <memory>

namespace {

QByteArray Aes128Ecb(const QByteArray& input, const QByteArray& key, bool encrypt)
{
    if (key.size() != 16)
        return {};
    std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> ctx(EVP_CIPHER_CTX_new(),
                                                                        &EVP_CIPHER_CTX_free);
    if (!ctx || EVP_CipherInit_ex(ctx.get(), EVP_aes_128_ecb(), nullptr,
                                  reinterpret_cast<const unsigned char*>(key.constData()), nullptr,
                                  encrypt ? 1 : 0) != 1)
        return {};
    QByteArray out(input.size() + 16, Qt::Uninitialized);
    int written = 0;
    int final = 0;
    if (EVP_CipherUpdate(ctx.get(), reinterpret_cast<unsigned char*>(out.data()), &written,
                         reinterpret_cast<const unsigned char*>(input.constData()),
                         int(input.size())) != 1 ||
        EVP_CipherFinal_ex(ctx.get(), reinterpret_cast<unsigned char*>(out.data()) + written,
                           &final) != 1)
        return {};
    out.resize(written + final);
    return out;
}

} // namespace

QString NavSignature::timestampMask(const QDateTime& timestamp)
{
    return timestamp.toUTC().toString(QStringLiteral("yyyyMMddHHmmss"));
}

QString NavSignature::sha3_512(const QByteArray& data)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(data, QCryptographicHash::Sha3_512).toHex().toUpper());
}

QString NavSignature::requestSignature(const QString& requestId, const QDateTime& timestamp,
                                       const QString& signingKey,
                                       const QList<NavSignedOperation>& operations)
{
    QString text = requestId + timestampMask(timestamp) + signingKey;
    for (const NavSignedOperation& op : operations)
        text += sha3_512(op.operation.toLatin1() + op.base64);
    return sha3_512(text.toUtf8());
}

QByteArray NavSignature::decryptToken(const QByteArray& encrypted, const QByteArray& key)
{
    return Aes128Ecb(encrypted, key, false);
}

QByteArray NavSignature::encryptToken(const QByteArray& token, const QByteArray& key)
{
    return Aes128Ecb(token, key, true);
}
