// Documents of strangers: what a command may be made to fetch, to wait for, to show or to fill the memory
// with.
#include <atomic>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <nlohmann/json.hpp>

#include "tests/tools/ToolProcess.h"

using nlohmann::json;

namespace {

constexpr char kSecret[] = "correct-horse-battery";

/// A server of this machine that counts who comes. To everybody it gives the secret.
class Server
{
public:
    Server()
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* const generic = reinterpret_cast<sockaddr*>(&address);
        EXPECT_EQ(bind(m_socket, generic, size), 0);
        EXPECT_EQ(listen(m_socket, 16), 0);
        EXPECT_EQ(getsockname(m_socket, generic, &size), 0);
        m_port = ntohs(address.sin_port);
        m_thread = std::thread([this] { Serve(); });
    }
    ~Server()
    {
        shutdown(m_socket, SHUT_RDWR); // which ends the wait for the next one
        m_thread.join();
        close(m_socket);
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    std::string Uri() const { return "http://127.0.0.1:" + std::to_string(m_port) + "/secret.txt"; }
    int Requests() const { return m_requests; }

private:
    void Serve()
    {
        for (int visitor; (visitor = accept(m_socket, nullptr, nullptr)) >= 0; close(visitor)) {
            ++m_requests;
            char request[4096];
            if (recv(visitor, request, sizeof request, 0) <= 0)
                continue;
            const std::string body = kSecret;
            const std::string answer = "HTTP/1.0 200 OK\r\nContent-Type: text/plain\r\nContent-Length: " +
                                       std::to_string(body.size()) + "\r\n\r\n" + body;
            send(visitor, answer.data(), answer.size(), MSG_NOSIGNAL);
        }
    }

    const int m_socket = socket(AF_INET, SOCK_STREAM, 0);
    int m_port = 0;
    std::atomic<int> m_requests = 0;
    std::thread m_thread;
};

/// A way in which a document names something, and whether a document that does so is read all the same.
struct Way
{
    const char* name;
    bool isRead;
    std::string (*document)(const std::string& target);
};

const std::string kBody = "<Model><AttributeDefinition><Attributes><Attribute ID='A'/></Attributes>"
                          "</AttributeDefinition></Model>";

const Way kWays[] = {
    {"document type", false,
     [](const std::string& target) { return "<!DOCTYPE Model SYSTEM '" + target + "'>" + kBody; }},
    {"entity", false,
     [](const std::string& target) {
         return "<!DOCTYPE Model [<!ENTITY e SYSTEM '" + target + "'>]><Model>&e;</Model>";
     }},
    {"parameter entity", false,
     [](const std::string& target) {
         return "<!DOCTYPE Model [<!ENTITY % p SYSTEM '" + target + "'> %p;]>" + kBody;
     }},
    {"schema", true,
     [](const std::string& target) {
         return "<Model xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                "xsi:noNamespaceSchemaLocation='" +
                target + "' xsi:schemaLocation='urn:x " + target + "'/>";
     }},
    {"inclusion", true,
     [](const std::string& target) {
         return "<?xml-stylesheet href='" + target +
                "'?><Model xmlns:xi='http://www.w3.org/2001/XInclude'><xi:include parse='text' href='" +
                target + "'/></Model>";
     }},
};

const std::vector<std::string> kCommands = {"show in.xml",
                                            "show --format json in.xml",
                                            "rewrite in.xml out.xml",
                                            "diff --format json plain.xml in.xml",
                                            "graph in.xml",
                                            "check --source in.xml",
                                            "check --format json in.xml",
                                            "check --format sarif - <in.xml"};

class Strangers : public Talschema
{
protected:
    void SetUp() override
    {
        if (ToolIsForWindows())
            GTEST_SKIP() << "has no pipes and no devices";
        WriteFile(m_elsewhere / "secret.txt", kSecret);
        ASSERT_EQ(mkfifo((m_elsewhere / "pipe").c_str(), 0600), 0);
        Write("plain.xml", kBody);
    }

    /// A document that puts a file into the value of an attribute.
    void WriteLeak(const std::string& target) const
    {
        Write("own.dtd",
              "<!ENTITY % secret SYSTEM '" + target +
                  "'>\n<!ENTITY % wrap \"<!ENTITY leak '%secret;'>\">\n%wrap;\n"
                  "<!ELEMENT Model ANY><!ELEMENT AttributeDefinition ANY><!ELEMENT Attributes ANY>\n"
                  "<!ELEMENT Attribute EMPTY><!ATTLIST Attribute ID CDATA #IMPLIED>\n");
        Write("in.xml", "<!DOCTYPE Model SYSTEM 'own.dtd'><Model><AttributeDefinition><Attributes>"
                        "<Attribute ID='&leak;'/></Attributes></AttributeDefinition></Model>");
    }

    /// Who waits is ended, with an exit code that no command has.
    Result RunInTime(const std::string& arguments) const
    {
        std::filesystem::remove(m_directory / "out.xml");
        return Run("timeout 60 \"$TALSCHEMA\" " + arguments);
    }

    void ExpectNothingOfTheSecret(const Result& result) const
    {
        EXPECT_EQ((result.out + result.err + Content("out.xml")).find(kSecret), std::string::npos);
    }

    const TemporaryDirectory m_elsewhere;
    const std::string m_secret = FileUri(m_elsewhere / "secret.txt");
};

TEST_F(Strangers, MakeNoCommandLookOutsideOfTheFolder)
{
    const Server server;
    for (const std::string& target :
         {server.Uri(), m_secret, FileUri(m_elsewhere / "pipe"), std::string("/dev/zero")}) {
        for (const Way& way : kWays) {
            Write("in.xml", way.document(target));
            for (const std::string& command : kCommands) {
                SCOPED_TRACE(command + ", " + way.name + " " + target);
                const Result result = RunInTime(command);
                const bool check = command.rfind("check", 0) == 0;
                EXPECT_TRUE(way.isRead ? result.exitCode <= 1 : result.exitCode == (check ? 1 : 2))
                    << result.exitCode << result.err;
                EXPECT_NE(way.isRead,
                          (result.out + result.err).find("which is no file in or below its own folder") !=
                              std::string::npos);
                EXPECT_EQ(Names().size(), way.isRead && command.rfind("rewrite", 0) == 0 ? 3U : 2U);
                ExpectNothingOfTheSecret(result);
            }
        }
    }
    EXPECT_EQ(server.Requests(), 0);
}

TEST_F(Strangers, PutNoFileIntoAValueUnlessExternalFilesAreAllowed)
{
    const Server server;
    int requests = 0;
    for (const std::string& target : {m_secret, server.Uri()}) {
        WriteLeak(target);
        for (const std::string& command : kCommands) {
            SCOPED_TRACE(command + " " + target);
            const Result refused = RunInTime(command);
            EXPECT_EQ(refused.exitCode, command.rfind("check", 0) == 0 ? 1 : 2) << refused.err;
            ExpectNothingOfTheSecret(refused);
            EXPECT_EQ(server.Requests(), requests);

            const std::size_t name = command.find(' ');
            const Result allowed =
                RunInTime(command.substr(0, name) + " --allow-external" + command.substr(name));
            EXPECT_LE(allowed.exitCode, 1) << allowed.err;
            if (command.rfind("show", 0) == 0 || command.find("plain.xml") != std::string::npos ||
                command.rfind("rewrite", 0) == 0) {
                EXPECT_NE((allowed.out + Content("out.xml")).find(kSecret), std::string::npos);
            }
            EXPECT_EQ(server.Requests() > requests, target == server.Uri());
            requests = server.Requests();
        }
    }
}

TEST_F(Strangers, NameNoDocumentThatIsNoFile)
{
    const Server server;
    for (const std::string& name : {server.Uri(), m_secret}) {
        for (std::string command : kCommands) {
            for (std::size_t at;
                 (at = command.find("in.xml")) != std::string::npos && command[at - 1] == ' ';)
                command.replace(at, 6, name);
            if (command.find("plain") != std::string::npos || command.find('<') != std::string::npos)
                continue;
            SCOPED_TRACE(command);
            const Result result = RunInTime(command);
            EXPECT_EQ(result.exitCode, 2);
            EXPECT_EQ(Names(), std::vector<std::string>{"plain.xml"});
            EXPECT_NE(result.err.find(": error: "), std::string::npos);
            ExpectNothingOfTheSecret(result);
        }
    }
    EXPECT_EQ(server.Requests(), 0);
}

TEST_F(Strangers, ManyFindingsAreCountedNotKept)
{
    const auto document = [](int strangers) {
        return "<Model><Entities><Entity Type='A'><Definition><AttributeSequence>"
               "<Attribute IDRef='gone'/></AttributeSequence></Definition></Entity></Entities>" +
               Repeated("<X/>", strangers) + "</Model>";
    };
    Write("in.xml", document(9));
    const std::string sum = "0 errors, 10 warnings and 0 notes in 1 document";
    const std::string omitted = "7 of 10 findings left out (--max-findings)";
    EXPECT_EQ(Run("talschema check in.xml").err, sum + "\n");
    const Result few = Run("talschema check --max-findings 3 in.xml");
    EXPECT_EQ(std::count(few.out.begin(), few.out.end(), '\n'), 3);
    EXPECT_EQ(few.err, sum + "; " + omitted + "\n");
    EXPECT_EQ(few.exitCode, 1);

    const json report = json::parse(Run("talschema check --max-findings 3 --format json in.xml").out);
    EXPECT_EQ(report.at("findings").size(), 3U);
    EXPECT_EQ(report.at("summary").at("warnings"), 10);
    EXPECT_EQ(report.at("summary").at("omitted"), 7);
    const json run =
        json::parse(Run("talschema check --max-findings 3 --format sarif in.xml").out).at("runs").at(0);
    EXPECT_EQ(run.at("results").size(), 3U);
    const json invocation = run.at("invocations").at(0);
    EXPECT_EQ(invocation.at("toolExecutionNotifications").at(0).at("message").at("text"), omitted);

    const Result none = Run("talschema check --max-findings 0 in.xml");
    EXPECT_EQ(none.out, "");
    EXPECT_EQ(none.exitCode, 1);
    EXPECT_EQ(
        Run("talschema check --max-findings 0 --disable unknown-element --disable unknown-reference in.xml")
            .exitCode,
        0);
    EXPECT_EQ(Run("talschema check --max-findings -1 in.xml").exitCode, 2);

    Write("in.xml", document(300'000));
#ifndef TAL_SANITIZED
    const std::string check = "ulimit -v 260000; talschema check -q in.xml";
    EXPECT_EQ(Run(check).exitCode, 1);
    EXPECT_EQ(Run(check + " --max-findings 300000").exitCode, 2) << "kept, they take more than that";
#endif
    EXPECT_NE(Run("talschema rewrite in.xml out.xml").err.find(" more [unknown-element]"), std::string::npos);
}

} // namespace
