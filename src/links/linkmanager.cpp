#include "linkmanager.h"

#include "appinfo.h"
#include "languages.h"
#include "options.h"
#include "settingsfile.h"

#include <QDebug>
#include <QDesktopServices>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QMessageBox>
#include <QSettings>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

// The language of the help pages for a system with this @p locale.
QString pageLanguage(const QString &locale)
{
    if (locale == "zh_TW"_L1 || locale == "zh_HK"_L1)
        return u"zh_TW"_s;
    // Readers of simplified Chinese read the English pages more easily than the traditional Chinese
    // ones.
    const QString code = locale.left(2).toLower();
    return languages::contains(code) ? code : u"en"_s;
}

void showMessage(QMessageBox::Icon icon, const QString &title, const QString &text, QWidget *parent)
{
    QMessageBox box(icon, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    // The user can copy an address from the box.
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
}

} // namespace

LinkManager *LinkManager::instance()
{
    static auto *const manager = new LinkManager(u":/rules/links.json"_s, QLocale::system().name());
    return manager;
}

LinkManager::LinkManager(const QString &tablePath, const QString &systemLocale, QObject *parent)
    : QObject(parent)
{
    if (!loadTable(tablePath))
        qDebug() << "[LinkManager] 加载链接配置失败！";
    m_currentLanguage = chooseLanguage(systemLocale);
    qDebug() << "[LinkManager] 初始化完成";
    qDebug() << "[LinkManager] 当前语言:" << m_currentLanguage;
    qDebug() << "[LinkManager] 支持的语言:" << m_supportedLanguages;
}

bool LinkManager::loadTable(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qDebug() << "[LinkManager] 无法打开 links.json:" << path;
        return false;
    }
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject()) {
        qDebug() << "[LinkManager] JSON 格式错误";
        return false;
    }
    m_links = document.object();
    if (const QJsonValue value = m_links.value("metadata"_L1); !value.isUndefined()) {
        const QJsonObject metadata = value.toObject();
        const QJsonArray languages = metadata.value("supported_languages"_L1).toArray();
        for (const auto &language : languages)
            m_supportedLanguages.append(language.toString());
        if (metadata.contains("fallback_language"_L1))
            m_fallbackLanguage = metadata.value("fallback_language"_L1).toString();
        qDebug() << "[LinkManager] 元数据加载成功";
        qDebug() << "[LinkManager] 版本:" << metadata.value("version"_L1).toString();
        qDebug() << "[LinkManager] 更新日期:" << metadata.value("last_updated"_L1).toString();
    }
    return true;
}

QString LinkManager::chooseLanguage(const QString &systemLocale) const
{
    const QString stored = settingsfile::openLanguage()->value(options::language).toString();
    if (!stored.isEmpty() && m_supportedLanguages.contains(stored)) {
        qDebug() << "[LinkManager] 使用用户设置的语言:" << stored;
        return stored;
    }
    const QString code = pageLanguage(systemLocale);
    qDebug() << "[LinkManager] 系统语言:" << systemLocale << "-> 映射为:" << code;
    if (m_supportedLanguages.contains(code))
        return code;
    qDebug() << "[LinkManager] 不支持的语言，使用回退语言:" << m_fallbackLanguage;
    return m_fallbackLanguage;
}

QString LinkManager::lookUp(const QString &category, const QString &key,
                            const QString &language) const
{
    if (!m_links.contains(category)) {
        qDebug() << "[LinkManager] 类别不存在:" << category;
        return {};
    }
    const QJsonObject keys = m_links.value(category).toObject();
    if (!keys.contains(key)) {
        qDebug() << "[LinkManager] 键不存在:" << key << "in category:" << category;
        return {};
    }
    const QJsonObject addresses = keys.value(key).toObject();
    if (addresses.contains(language)) {
        const QString address = addresses.value(language).toString();
        qDebug() << "[LinkManager] 获取链接:" << category << key << "->" << address;
        return address;
    }
    if (addresses.contains(m_fallbackLanguage)) {
        qDebug() << "[LinkManager] 语言" << language
                 << "不存在，使用回退语言:" << m_fallbackLanguage;
        return addresses.value(m_fallbackLanguage).toString();
    }
    qDebug() << "[LinkManager] 无法找到链接:" << category << key;
    return {};
}

QString LinkManager::getLink(const QString &category, const QString &key) const
{
    QString link = lookUp(category, key, m_currentLanguage);
    if (!link.isEmpty()) {
        qDebug().noquote() << u"[LinkManager] ✓ 获取链接成功 [%1]:"_s.arg(m_currentLanguage)
                           << link;
        return link;
    }
    qDebug() << "[LinkManager] ⚠ 无法获取" << m_currentLanguage << "的"
             << "版本，降级到" << m_fallbackLanguage;
    link = lookUp(category, key, m_fallbackLanguage);
    if (link.isEmpty()) {
        qDebug() << "[LinkManager] ✗ 无法获取链接:" << category << key;
        qDebug() << "[LinkManager] ✗ 请检查 links.json 配置文件！";
        return {};
    }
    qDebug().noquote() << u"[LinkManager] ✓ 使用回退语言 [%1]:"_s.arg(m_fallbackLanguage) << link;
    return link;
}

bool LinkManager::openLink(const QString &category, const QString &key, QWidget *parent)
{
    const QString link = getLink(category, key);
    if (link.isEmpty()) {
        qDebug() << "[LinkManager] ✗ 无法打开链接:" << category << key;
        if (parent)
            showMessage(QMessageBox::Critical, tr("配置错误"),
                        tr("无法加载页面链接。\n\n请联系技术支持或重新安装软件。"), parent);
        return false;
    }
    if (openUrl(QUrl(link))) {
        qDebug() << "[LinkManager] ✓ 成功打开链接:" << link;
        return true;
    }
    qDebug() << "[LinkManager] ⚠ 无法打开浏览器:" << link;
    if (parent)
        showMessage(QMessageBox::Warning, tr("无法打开浏览器"),
                    tr("无法打开默认浏览器。\n\n请手动复制链接访问：\n%1").arg(link), parent);
    return false;
}

bool LinkManager::openUrl(const QUrl &url)
{
    return QDesktopServices::openUrl(url);
}

void LinkManager::setLanguage(const QString &code)
{
    if (!m_supportedLanguages.contains(code)) {
        qDebug() << "[LinkManager] 不支持的语言:" << code;
        return;
    }
    if (code == m_currentLanguage)
        return;
    m_currentLanguage = code;
    settingsfile::openLanguage()->setValue(options::language, code);
    qDebug() << "[LinkManager] 语言已切换为:" << code;
    Q_EMIT languageChanged(code);
}
