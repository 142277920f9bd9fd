#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ravo::test {

/// Documents for which both ways of loading and the plain rules must build the same tree.
inline const std::vector<std::string>& Documents() {
  using namespace std::string_view_literals;
  static const std::vector<std::string> documents = [] {
    std::vector<std::string> all = {
        "",
        "text",
        "<a><b>x</b><c/></a>",
        "<a></b>",
        "<a>\r\n  <b x=\"1 2\" y=\"3\"/>\r\n</a>\r\n",
        "<a><b x=\"1 2\" y=3/></a>",
        "<a><b x=\"\"/></a>",
        "<a x='1 2' y='3'></a>",
        "<a x= y=\"2\"></a>",
        "<a x=\"1\" x= y=\"2\" x=\"3\"></a>",
        "<a x=\"1\" X=\"2\" x=\"3\"></a>",
        "<a x=\"1\" x=\"\" ></a>",
        "<a checked x=\"1\"></a>",
        "<a =\"1\" checked></a>",
        "<a =1 =2 b></a>",
        "<a x=\"a&lt;&amp;lt;&quot;b&apos;\"></a>",
        "<a x=\"a<b\" y=\"it's\" z=\"'q'\"></a>",
        "<a x=\"1\" /><b/>",
        "<a\n x=\"1\"\n y=\"2\"></a>",
        "<a\r\n   x=\"1\"\r\n   y=\"2\"></a>",
        "<a\r\nx=\"1\"></a>",
        "<a\tx=\"1\" y=\"2\"><b\tc/></a>",
        "<a/b c=\"1\"><x/></a/b>",
        "<a x=/><b y=\"/\"/>",
        "<a x=\" 1  2 \"></a>",
        "<a x=\"1\"y=\"2\"></a>",
        "<a \"x y\"=\"1\"></a>",
        "<a x=\"1\"2 y></a>",
        "<a x=\"\t\" y=\"\x01\"></a>",
        "<a x=\"</a>",
        "<a x=\"1 2>3",
        "<a b =1></a>",
        "<a b =1 =2 c></a>",
        "<a =1 b c></a>",
        "<a x=abc y='abc z=\"abc'></a>",
        "<\"a>b\" c=\"1\"><d/></a>",
        "<\"a>b\" c/>",
        "<></><a><b>",
        "< x=\"1\"><b><c></b>",
        "<>a<b>c",
        "<br/><br/><a>x</a>",
        "<a>x<b/>y<b/>z</a>",
        "<a>&amp;amp;amp;lt;<b/>&amp;amp;lt;<b/>&amp;lt;<b/>&lt;</a>",
        "<a>&amp;amp;amp;lt;<b/>x</a>",
        "<a>&amp;amp;amp;amp;amp;gt;<b/>x<b/>&amp;amp;amp;amp;<b/>y</a>",
        "<a>a &amp;lt; b</a>",
        "<a><b><c><d><e><f><g><h><i><j><k><l><m><n><o><p><q><r><s>t</s></r></q></p></o></n></m></l></k></j></"
        "i></h></g></f></e></d></c></b></a>",
        "<a>&lt;&gt;&quot;&apos;&#65;&amp;&</a>",
        "<a><![CDATA[<x> & \"y\"]]></a>",
        "<a><![CDATA[ ]]>x<![CDATA[y]]] </a>",
        "<a><![CDATA[x]]\ty<![CDATA[]]></a>",
        "<a><![CDATA[]]\t<b/></a>",
        "<a><![cdata[x]]></a>",
        "<a>x\r\r\n\ny</a>",
        "<a>one\r\n two\n three\rfour</a>",
        "<a>say \"yes\" > no</a>",
        "<a>x<br/>y</a>",
        "<!DOCTYPE x><a><!-- c > d --></a>",
        "<?php x?><a/></php>",
        "<a>\xE8\xEF\x9A\x8A\xFF</a>",
        "<\x8A\x9A x\xE8=\"\xF8\"><\xA0/></x>",
        "<a></a>text",
        "<a></a></a>",
        "<a></a><b/>",
        "<a></a><b>",
        "<a></a><!-- c --><?xml?>",
        "<a><b><c></c></b></a></x>",
        std::string("<a>x\0y</a>"sv),
        std::string("<a\0b x=\"\0\"></a>"sv),
    };
    std::string many = "<a";
    for (int i = 0; i < 60; ++i) many += " n" + std::to_string(i) + "=\"" + std::to_string(i * i) + "\"";
    all.push_back(many + "><b/></a>");
    return all;
  }();
  return documents;
}

}  // namespace ravo::test
