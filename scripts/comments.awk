# SPDX-License-Identifier: MIT
# Reads the XML of the reference and prints a line for each public name in it: the file, the kind,
# the name, and 1 if a comment says what it is, else 0. What the compiler writes needs no comment,
# nor do destructors and what is internal.
BEGIN { FS = "[<>]" }

function of(name) {
    if (!match($0, " " name "=\"[^\"]*\""))
        return ""
    return substr($0, RSTART + length(name) + 3, RLENGTH - length(name) - 4)
}
function tell(kind, name, told) {
    if (name !~ /(^|::)(detail::|~)|@/ && !seen[file, kind, name, args]++)
        print file, kind, name, told
}

/<compounddef / { whole = of("kind"); isOpen = of("prot") != "private"; scope = ""; told = 0 }
/<compoundname>/ && scope == "" { scope = $3 }
/<memberdef / {
    isMember = 1; kind = of("kind"); isPublic = of("prot") == "public"; own = values = 0
}
/<enumvalue / { isValue = 1; comment[++values] = 0 }
/<name>/ { if (isValue) value[values] = $3; else if (isMember) name = $3 }
/<argsstring>/ { args = $3 }
/<(brief|detailed)description>/ { isComment = 1 }
isComment && /<para>/ {
    if (isValue) comment[values] = 1; else if (isMember) own = 1; else told = 1
}
/<\/(brief|detailed)description>/ { isComment = 0 }
/<\/enumvalue>/ { isValue = 0 }
/<location / { file = of("file") }
/<\/memberdef>/ {
    isMember = 0
    prefix = whole == "file" ? "" : scope "::"
    if (isOpen && isPublic && kind !~ /friend|define/ && args !~ /= ?(default|delete)/) {
        tell(kind, prefix name, own)
        for (i = 1; i <= values; ++i)
            tell("enumvalue", prefix value[i], comment[i])
    }
}
/<\/compounddef>/ { args = ""; if (isOpen && whole ~ /class|struct/) tell("class", scope, told) }
