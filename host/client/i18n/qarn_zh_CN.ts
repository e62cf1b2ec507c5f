<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AlertHistoryDlg</name>
    <message>
        <location filename="../alerts/AlertHistoryDlg.cpp" line="+23"/>
        <location line="+25"/>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+21"/>
        <source>No messages yet</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DemoDevice</name>
    <message>
        <location filename="../demo/DemoDevice.cpp" line="+63"/>
        <source>The simulated device cannot be started: is face-device-sim installed beside the client?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Simulated door</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Entrance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <location filename="../startup/Language.cpp" line="+11"/>
        <source>Language of the system</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../startup/Session.cpp" line="+49"/>
        <source>Demonstration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../window/MainWindow.cpp" line="+42"/>
        <source>Persons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Person register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuitGuard</name>
    <message>
        <location filename="../window/QuitGuard.cpp" line="+30"/>
        <source>Quitting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The work that is running ends first. Nothing is lost.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <location filename="../settings/SettingsDlg.cpp" line="+49"/>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+22"/>
        <location line="+1"/>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Rows a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+3"/>
        <source>Person register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Language and person register take effect at the next start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Open or make a person register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Person register (*.db)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StoreFailureDlg</name>
    <message>
        <location filename="../startup/StoreFailureDlg.cpp" line="+29"/>
        <source>The person register cannot be opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Nothing was changed. Try again once the cause is gone, or use another file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Another file...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Open or make a person register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Person register (*.db)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <location filename="../../qarn_worker/PathCheck.cpp" line="+54"/>
        <source>The directory &quot;%1&quot; does not exist. Create it or choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; is not a directory. Choose a directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; cannot be written to. Change its permissions or choose another place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>There is no room left at &quot;%1&quot;. Free some space or choose another place.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <location filename="../window/TitleBar.cpp" line="+28"/>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+40"/>
        <source>Maximize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-39"/>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>XCOMMON::ToolsCollection</name>
    <message>
        <location filename="../../XCOMMON/ToolsCollection.cpp" line="+59"/>
        <source>The image &quot;%1&quot; cannot be read: there is no such file. Choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The image &quot;%1&quot; cannot be read: %2. Check its permissions or choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The image &quot;%1&quot; is larger than %2 MiB. Choose a smaller one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The image &quot;%1&quot; cannot be read: %2. Try again or choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ExportPersonsDlg</name>
    <message>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.ui" line="+49"/>
        <location line="+367"/>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-355"/>
        <source>Person Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Person Face</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Export child organization persons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Sel expot colums</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+26"/>
        <location line="+126"/>
        <source>background: #0e1622;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-102"/>
        <location line="+126"/>
        <source>Sel All Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-118"/>
        <location line="+126"/>
        <source>Serail Num</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-118"/>
        <location line="+126"/>
        <source>Person Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-118"/>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.cpp" line="+32"/>
        <source>Organization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+118"/>
        <source>Gender</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-110"/>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.cpp" line="+2"/>
        <source>Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+110"/>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.cpp" line="+1"/>
        <source>Phone Num</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-102"/>
        <location line="+110"/>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.cpp" line="+1"/>
        <source>Identity ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-102"/>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.cpp" line="+1"/>
        <source>Valid Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.cpp" line="+1"/>
        <source>Invalid Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+126"/>
        <source>Column order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+75"/>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../../personMgr/transfer/ExportPersonsDlg.cpp" line="-8"/>
        <source>*Serail Num</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>*Person Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Sex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+165"/>
        <source>Please select export columns</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ImportPersonsDlg</name>
    <message>
        <location filename="../../../personMgr/transfer/ImportPersonsDlg.ui" line="+49"/>
        <location line="+306"/>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-294"/>
        <source>Person Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Person Face</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Import File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+49"/>
        <source>color: #2c7dce; font-size: 13px; text-decoration: underline; background: transparent;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Download personnel import template</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+69"/>
        <source>Naming Rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Serial Num_Person Name_Sex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+12"/>
        <source>SerialNum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+13"/>
        <source>PersonName</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+13"/>
        <location filename="../../../personMgr/transfer/ImportPersonsDlg.cpp" line="+49"/>
        <location line="+21"/>
        <source>Sex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+28"/>
        <source>color: #6c7586;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>1.Single picture less than 200K
2.Format only supports jpg
3.sex:Male,Female</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+72"/>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../../personMgr/transfer/ImportPersonsDlg.cpp" line="-26"/>
        <source>Import persons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+23"/>
        <source>Serial Num</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-22"/>
        <location line="+22"/>
        <source>Person Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+40"/>
        <source>Select Person faces dir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Select Person info file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Please select person faces dir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Please select person info file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Please set naming rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Download Person import template</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Download import person template finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Download person import template failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../../../personMgr/transfer/PersonFileFormat.cpp" line="+39"/>
        <source>Rules:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>1. Star is required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>2. 1:Male 2:Female</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>3. Date Format:YYYY-MM-DD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>4. Hierarchical use / segmentation of the organization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+4"/>
        <source>*Serial Num</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>*Person Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>*Organization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>*Sex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Phone Num</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valid Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Invalid Time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ImportPersonsThread</name>
    <message>
        <location filename="../../../personMgr/transfer/ImportPersonsThread.cpp" line="+81"/>
        <source>*Serial Num</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Failed to open the file containing face information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Failed to read %1: %2. No new persons were added; import the file again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+30"/>
        <source>The directory does not contain face images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Male</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+64"/>
        <source>import persons finished(Existing persons updated the information)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>qarn_worker::DictDef</name>
    <message>
        <location filename="../../qarn_worker/DictDef.cpp" line="+7"/>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Success</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
